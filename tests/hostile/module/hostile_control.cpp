#include "tests/hostile/module/hostile_control.h"

#include "tests/hostile/module/actions.h"
#include "tests/hostile/module/attacker.h"

#include <hostapi/qrui18/messages.h>
#include <hostapi/qrui18/tool_panel_item.h>

#include <iterator>
#include <memory>
#include <vector>

namespace hostile {

namespace {

// What the dashboard broadcasts to all controls on its panels.
constexpr UINT kDocumentToBeActivated = 1724;
constexpr UINT kLastDocumentDestroyed = 1725;
constexpr UINT kDocumentBecameCurrent = 1726;
constexpr UINT kVariableChanged = 1727;
constexpr UINT kVariableWillChange = 1728;
constexpr UINT kCommandStarted = 1729;
constexpr UINT kCommandEnded = 1730;
constexpr UINT kCommandCancelled = 1731;
constexpr UINT kViewChanged = 1736;
constexpr UINT kDocumentToBeDestroyed = 1737;

constexpr UINT kControlId = 1;
constexpr UINT kFieldId = 1;
constexpr UINT kToolkitStyle = 2;
constexpr UINT kTimer = 1;
constexpr UINT kTimerMs = 100;

/// All that were made, also those without a window any more: one may be running.
std::vector<std::unique_ptr<HostileControl>> s_controls;

}  // namespace

template <Point Reached>
LRESULT HostileControl::pass(WPARAM /*wParam*/, LPARAM /*lParam*/) {
    reach(Reached);
    return Default();
}

template <Point Reached>
LRESULT HostileControl::hear(WPARAM /*wParam*/, LPARAM /*lParam*/) {
    reach(Reached);
    return 0;
}

template <Point Reached>
LRESULT HostileControl::hearVariable(WPARAM /*wParam*/, LPARAM name) {
    const WrittenVariable written(reinterpret_cast<const wchar_t*>(name));
    reach(Reached);
    return 0;
}

constexpr MessageEntry HostileControl::kMessages[] = {
    {WM_CREATE, to<&HostileControl::onCreate>},
    {WM_DESTROY, to<&HostileControl::pass<Point::ControlIsEnding>>},
    {WM_SIZE, to<&HostileControl::pass<Point::ControlSized>>},
    {WM_WINDOWPOSCHANGED, to<&HostileControl::pass<Point::ControlPlaced>>},
    {WM_TIMER, to<&HostileControl::hear<Point::ControlTimer>>},
    {WM_IDLEUPDATECMDUI, to<&HostileControl::hear<Point::ControlIdle>>},
    {WM_QRUI_THEME_CHANGED, to<&HostileControl::pass<Point::ControlThemed>>},
    {WM_QRUI_KEEP_FOCUS, to<&HostileControl::hear<Point::FocusAsked>>},
    {WM_QRUI_HAS_ICON, to<&HostileControl::hear<Point::IconAsked>>},
    {WM_QRUI_ROW_QUERY, to<&HostileControl::hear<Point::RowAsked>>},
    {kDocumentToBeActivated, to<&HostileControl::hear<Point::HeardDocumentToBeActivated>>},
    {kLastDocumentDestroyed, to<&HostileControl::hear<Point::HeardLastDocumentDestroyed>>},
    {kDocumentBecameCurrent, to<&HostileControl::hear<Point::HeardDocumentBecameCurrent>>},
    {kVariableChanged, to<&HostileControl::hearVariable<Point::HeardVariableChanged>>},
    {kVariableWillChange, to<&HostileControl::hearVariable<Point::HeardVariableWillChange>>},
    {kCommandStarted, to<&HostileControl::hear<Point::HeardCommandStarted>>},
    {kCommandEnded, to<&HostileControl::hear<Point::HeardCommandEnded>>},
    {kCommandCancelled, to<&HostileControl::hear<Point::HeardCommandCancelled>>},
    {kViewChanged, to<&HostileControl::hear<Point::HeardViewChanged>>},
    {kDocumentToBeDestroyed, to<&HostileControl::hear<Point::HeardDocumentToBeDestroyed>>},
    {WM_QRUI_LIST_DROPPED, to<&HostileControl::hear<Point::ListAsked>>},
};
const MessageMap HostileControl::kMessageMap{&CQrUiToolPanel::GetThisMessageMap, kMessages,
                                             std::size(kMessages)};

const MessageMap& HostileControl::GetMessageMap() const {
    static_assert(hostapi::isAscendingAndUnique(kMessages));
    return kMessageMap;
}

HWND HostileControl::make(CWnd& parent) {
    const CRect rect = parent.GetClientRect();
    HostileControl& control = *s_controls.emplace_back(std::make_unique<HostileControl>());
    control.Create(WS_CHILD | WS_VISIBLE, rect, &parent, kControlId, kToolkitStyle);
    return control.m_hWnd;
}

CWnd* HostileControl::anyParent() {
    for (const auto& control : s_controls) {
        if (CWnd* const parent = control->GetParent())
            return parent;
    }
    return nullptr;
}

void HostileControl::endAll() {
    s_controls.clear();
}

BOOL HostileControl::PreTranslateMessage(MSG* msg) {
    reach(Point::KeyOnItsRoad);
    return CQrUiToolPanel::PreTranslateMessage(msg);
}

BOOL HostileControl::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (HIWORD(wParam) == EN_SETFOCUS)
        reach(Point::FieldEntered);
    else if (HIWORD(wParam) == EN_KILLFOCUS)
        reach(Point::FieldLeft);
    return CQrUiToolPanel::OnCommand(wParam, lParam);
}

LRESULT HostileControl::onCreate(WPARAM /*unused*/, LPARAM create) {
    const auto* creation = reinterpret_cast<const CREATESTRUCT*>(create);
    if (OnCreate(creation) == -1)
        return -1;
    const CRect rect{0, 0, creation->cx, creation->cy};
    if (!m_field.Create(WS_CHILD | WS_VISIBLE, rect, this, kFieldId, kToolkitStyle))
        return -1;
    // The item belongs to this panel once it is appended; the field's window stays a member's.
    auto* const item = new CQrUiToolPanelItem(this);
    item->SetType(kItemControl);
    AddToolPanelItem(item);
    item->SetControl(m_field.m_hWnd);
    SetTimer(kTimer, kTimerMs);
    reach(Point::ControlCreated);
    return 0;
}

}  // namespace hostile
