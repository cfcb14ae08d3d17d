#include "text/text_height_combo.h"

#include "controls/doc_lock.h"
#include "controls/edit_messages.h"
#include "controls/variable_access.h"
#include "core/broadcast_messages.h"
#include "core/message_table.h"
#include "core/message_values.h"
#include "core/module_call.h"
#include "core/resources.h"
#include "core/text.h"
#include "text/text_height_list.h"

#include <hostapi/zorq/documents.h>

#include <algorithm>
#include <optional>
#include <vector>

namespace {

// Child, visible, vertical scroll bar, an owner-drawn drop-down list with strings.
constexpr DWORD kStyle = 0x50310223;
constexpr int kListHeight = 300;  // pixels
constexpr UINT kStrTip = 4001;
constexpr const wchar_t* kHeightVariable = L"TEXTSIZE";
constexpr const wchar_t* kStyleVariable = L"TEXTSTYLE";
constexpr const wchar_t* kPrecisionVariable = L"LUPREC";
constexpr const wchar_t* kUnitsVariable = L"LUNITS";
// It can change the height of the current style, without touching the variable of that.
constexpr const wchar_t* kStyleCommand = L"STYLE";

/// An entry with a height of the list.
struct HeightItem : QRUI_COMBO_CTRL_ITEM {
    std::size_t index = 0;  // into the list's values: a height that can't be written has no entry
};

std::vector<CVxDaTextHeightComboCtrl*> s_combos;  // with a window, in order of creation; not owned

bool isListUsable() {
    const auto list = currentTextHeights();
    return list != nullptr && list->variableHeight;
}

}  // namespace

constexpr MessageEntry CVxDaTextHeightComboCtrl::kMessages[] = {
    {WM_CREATE, to<&CVxDaTextHeightComboCtrl::onCreate>},
    {WM_DESTROY, to<&CVxDaTextHeightComboCtrl::onDestroy>},
    {WM_LBUTTONDOWN, to<&CVxDaTextHeightComboCtrl::onMousePress>},
    {WM_LBUTTONDBLCLK, to<&CVxDaTextHeightComboCtrl::onMousePress>},
    {WM_DA_DOC_BECAME_CURRENT, to<&CVxDaTextHeightComboCtrl::onDocumentCurrent>},
    {WM_DA_SYSVAR_CHANGED, to<&CVxDaTextHeightComboCtrl::onSysVarChanged>},
    {WM_DA_COMMAND_ENDED, to<&CVxDaTextHeightComboCtrl::onCommandEnded>},
    {WM_DA_DOC_TO_BE_DESTROYED, to<&CVxDaTextHeightComboCtrl::onDocumentEnds>},
    {WM_REFLECT_BASE + WM_COMMAND, to<&CVxDaTextHeightComboCtrl::onOwnNotice>},
};
const MessageMap CVxDaTextHeightComboCtrl::kMessageMap =
    makeMessageMap(&CVxDaTextHeightComboCtrl::GetThisMessageMap, kMessages);

std::unique_ptr<CWnd> CVxDaTextHeightComboCtrl::make(CWnd* parent, const CRect& rect, UINT id) {
    auto combo = std::make_unique<CVxDaTextHeightComboCtrl>();
    if (!combo->Create(kStyle, {0, 0, rect.Width(), kListHeight}, parent, id))
        return nullptr;
    return combo;
}

CVxDaTextHeightComboCtrl::CVxDaTextHeightComboCtrl() {
    if (!s_combos.empty())
        return;
    if (VxApDocManager* documents = vxDocManagerPtr())
        ActivateDocument(documents->mdiActiveDocument());
}

CVxDaTextHeightComboCtrl::~CVxDaTextHeightComboCtrl() {
    std::erase(s_combos, this);
}

const MessageMap& CVxDaTextHeightComboCtrl::GetMessageMap() const {
    return kMessageMap;
}

LRESULT CVxDaTextHeightComboCtrl::onCreate(WPARAM /*unused*/, LPARAM /*create*/) {
    if (Default() == -1)
        return -1;
    const VxString tip = loadDashboardString(kStrTip);
    SetToolTipText(tip);
    s_combos.push_back(this);
    FillList();
    if (m_toolTip.m_hWnd == nullptr && m_toolTip.Create(this)) {
        m_toolTip.SendMessage(TTM_ACTIVATE, 1);
        m_toolTip.AddTool(this, tip);
    }
    return 0;
}

LRESULT CVxDaTextHeightComboCtrl::onDestroy(WPARAM /*unused*/, LPARAM /*unusedToo*/) {
    std::erase(s_combos, this);
    return Default();
}

BOOL CVxDaTextHeightComboCtrl::PreTranslateMessage(MSG* msg) {
    const ModuleCall call;
    if (m_toolTip.m_hWnd != nullptr)
        m_toolTip.SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(msg));
    return ModuleWindow::PreTranslateMessage(msg);
}

// The list

void CVxDaTextHeightComboCtrl::FillAllLists() {
    // By index: what is called may end a combo or make another.
    for (std::size_t i = 0; i < s_combos.size(); ++i)
        s_combos[i]->FillList();
}

void CVxDaTextHeightComboCtrl::FillList() {
    if (!IsWindow(m_hWnd))
        return;
    clearList();
    const auto list = currentTextHeights();
    if (list == nullptr)
        return;
    const std::optional<VxString> current = formatHeight(list->currentHeight);
    if (list->variableHeight) {
        addHeights();
    } else if (current) {
        auto item = std::make_unique<HeightItem>();
        item->text = *current;
        AddItem(item.release());
    }
    if (current)
        selectText(*current);
}

void CVxDaTextHeightComboCtrl::clearList() {
    for (int i = GetCount() - 1; i >= 0; --i)
        DeleteItem(i);
    SendMessage(CB_RESETCONTENT);
}

void CVxDaTextHeightComboCtrl::addHeights() {
    const std::vector<double> heights = currentTextHeights()->values;
    for (std::size_t i = 0; i < heights.size(); ++i) {
        const std::optional<VxString> text = formatHeight(heights[i]);
        if (!text)
            continue;
        auto item = std::make_unique<HeightItem>();
        item->text = *text;
        item->index = i;
        AddItem(item.release());
    }
}

void CVxDaTextHeightComboCtrl::selectText(const VxString& text) {
    for (int i = 0; i < GetCount(); ++i) {
        if (GetItem(i)->text == text) {
            SetCurSel(i);
            return;
        }
    }
}

// Documents

void CVxDaTextHeightComboCtrl::ActivateDocument(const VxApDocument* document) {
    if (document == nullptr)
        return;
    if (selectTextHeights(document) && currentTextHeights()->values.empty()) {
        AddTextSize();
        FollowStyle();
        FillAllLists();
    }
    FillList();
}

void CVxDaTextHeightComboCtrl::DropDocument(const VxApDocument* document) {
    if (dropTextHeights(document))
        FillAllLists();
}

LRESULT CVxDaTextHeightComboCtrl::onDocumentCurrent(WPARAM /*unused*/, LPARAM document) {
    ActivateDocument(documentFrom(document));
    return 0;
}

LRESULT CVxDaTextHeightComboCtrl::onDocumentEnds(WPARAM /*unused*/, LPARAM document) {
    if (const VxApDocument* ending = documentFrom(document))
        DropDocument(ending);
    return 0;
}

// Gestures

LRESULT CVxDaTextHeightComboCtrl::onMousePress(WPARAM /*keys*/, LPARAM /*point*/) {
    return isListUsable() ? Default() : 0;
}

LRESULT CVxDaTextHeightComboCtrl::onOwnNotice(WPARAM notice, LPARAM /*control*/) {
    if (HIWORD(notice) == CBN_SELCHANGE)
        onSelected();
    return 0;
}

void CVxDaTextHeightComboCtrl::onSelected() {
    const auto list = currentTextHeights();
    if (list == nullptr || !list->variableHeight)
        return;
    const int selected = GetCurSel();
    const auto* item = dynamic_cast<const HeightItem*>(GetItem(selected));
    const std::optional<std::size_t> index =
        item == nullptr ? std::nullopt : std::optional(item->index);
    for (std::size_t i = 0; i < s_combos.size(); ++i)
        s_combos[i]->SetCurSel(selected);
    if (!index || *index >= list->values.size())
        return;
    const double height = list->values[*index];
    list->currentHeight = height;
    const VxDaDocLock lock;
    writeVariableReal(kHeightVariable, height);
}

// What the host tells

LRESULT CVxDaTextHeightComboCtrl::onSysVarChanged(WPARAM /*success*/, LPARAM name) {
    if (isEventNamed(name, kHeightVariable)) {
        // A height that a fixed style overrules comes in when the style leaves the height free again.
        if (isListUsable()) {
            AddTextSize();
            FillList();
        }
    } else if (isEventNamed(name, kStyleVariable)) {
        FollowStyle();
        FillList();
    } else if (isEventNamed(name, kPrecisionVariable) || isEventNamed(name, kUnitsVariable)) {
        FillList();
    }
    return 0;
}

LRESULT CVxDaTextHeightComboCtrl::onCommandEnded(WPARAM /*unused*/, LPARAM name) {
    if (equalNoCase(eventNameFrom(name), kStyleCommand)) {
        FollowStyle();
        FillList();
    }
    return 0;
}
