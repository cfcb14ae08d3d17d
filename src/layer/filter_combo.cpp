#include "layer/filter_combo.h"

#include "core/broadcast_messages.h"
#include "core/message_table.h"
#include "core/message_values.h"
#include "core/module_call.h"
#include "core/theme.h"
#include "layer/filter_refresh.h"
#include "layer/layer_filter_mgr.h"

#include <hostapi/qrui18/image.h>
#include <hostapi/qrui18/messages.h>

#include <utility>
#include <vector>

namespace {

// Child, visible, vertical scroll bar, an owner-drawn drop-down list with strings.
constexpr DWORD kStyle = 0x50310223;
constexpr int kListHeight = 300;  // pixels

std::vector<CVxDaFilterComboCtrl*> s_combos;  // in order of construction; not owned
std::unique_ptr<CVxDaLayerFilterMgr> s_manager;
std::vector<std::unique_ptr<CVxDaLayerFilterComboDropdown>> s_earlierDropdowns;

}  // namespace

CVxDaLayerFilterMgr* layerFilterMgr() {
    return s_manager.get();
}

void showInFilterCombos(CVxDaLayerFilterMgr& manager, const VxLyLayerFilter& filter) {
    // By index: what is called may end a combo or make another.
    for (std::size_t i = 0; i < s_combos.size(); ++i) {
        if (IsWindow(s_combos[i]->m_hWnd))
            s_combos[i]->show(manager, filter);
    }
}

void endEarlierDropdowns() {
    for (auto& dropdown : std::exchange(s_earlierDropdowns, {}))
        freeAfterCall(std::move(dropdown));
}

constexpr MessageEntry CVxDaFilterComboCtrl::kMessages[] = {
    {WM_CREATE, to<&CVxDaFilterComboCtrl::onCreate>},
    {WM_LBUTTONDOWN, to<&CVxDaFilterComboCtrl::toggleDropdown>},
    {WM_LBUTTONDBLCLK, to<&CVxDaFilterComboCtrl::toggleDropdown>},
    {WM_QRUI_THEME_CHANGED, to<&CVxDaFilterComboCtrl::onThemeChanged>},
    {WM_QRUI_KEEP_FOCUS, to<&CVxDaFilterComboCtrl::onDropdownQuery>},
    {WM_DA_DOC_BECAME_CURRENT, to<&CVxDaFilterComboCtrl::onDocument>},
    {WM_DA_SYSVAR_CHANGED, to<&CVxDaFilterComboCtrl::onSysVarChanged>},
    {WM_DA_COMMAND_ENDED, to<&CVxDaFilterComboCtrl::onCommandEnded>},
    {WM_QRUI_LIST_DROPPED, to<&CVxDaFilterComboCtrl::onDropdownQuery>},
};
const MessageMap CVxDaFilterComboCtrl::kMessageMap =
    makeMessageMap(&CVxDaFilterComboCtrl::GetThisMessageMap, kMessages);

std::unique_ptr<CWnd> CVxDaFilterComboCtrl::make(CWnd* parent, const CRect& rect, UINT id) {
    auto combo = std::make_unique<CVxDaFilterComboCtrl>();
    if (!combo->Create(kStyle, {0, 0, rect.Width(), kListHeight}, parent, id))
        return nullptr;
    return combo;
}

CVxDaFilterComboCtrl::CVxDaFilterComboCtrl() {
    s_combos.push_back(this);
    if (s_manager == nullptr)
        s_manager = std::make_unique<CVxDaLayerFilterMgr>();
}

CVxDaFilterComboCtrl::~CVxDaFilterComboCtrl() {
    m_dropdown.reset();
    std::erase(s_combos, this);
    if (s_combos.empty())
        freeAfterCall(std::move(s_manager));
}

const MessageMap& CVxDaFilterComboCtrl::GetMessageMap() const {
    return kMessageMap;
}

LRESULT CVxDaFilterComboCtrl::onCreate(WPARAM /*unused*/, LPARAM /*create*/) {
    if (Default() == -1)
        return -1;
    SetFont(dashboardFont());
    refreshFilterCombos();
    return 0;
}

void CVxDaFilterComboCtrl::show(CVxDaLayerFilterMgr& manager, const VxLyLayerFilter& filter) {
    if (GetFont() != dashboardFont())
        SetFont(dashboardFont());
    FilterImages& images = manager.images();
    images.add(filter);
    ResetContent();
    auto item = std::make_unique<QRUI_COMBO_CTRL_ITEM>();
    item->text = filter.name();
    const FilterPictures pictures = images.add(filter);
    const HICON icon = images.merged().ExtractIcon(pictures.normal);
    item->image = BitmapFromIconGdiPlus(icon);
    DestroyIcon(icon);
    SetCurSel(AddItem(item.release()));
}

// The dropdown

bool CVxDaFilterComboCtrl::isDropdownVisible() const {
    return m_dropdown != nullptr && m_dropdown->IsWindowVisible() != 0;
}

LRESULT CVxDaFilterComboCtrl::onDropdownQuery(WPARAM /*unused*/, LPARAM /*unusedToo*/) {
    return isDropdownVisible() ? 1 : 0;
}

LRESULT CVxDaFilterComboCtrl::toggleDropdown(WPARAM /*keys*/, LPARAM /*point*/) {
    if (isDropdownVisible()) {
        m_dropdown->ShowWindow(SW_HIDE);
        return 0;
    }
    // Kept as it is: an earlier, hidden dropdown stays, because a call of it may be running still.
    if (m_dropdown != nullptr)
        s_earlierDropdowns.push_back(std::move(m_dropdown));
    m_dropdown = std::make_unique<CVxDaLayerFilterComboDropdown>(*this);
    m_dropdown->create();
    if (m_dropdown->m_hWnd == nullptr)
        return 0;
    const CRect place = GetWindowRect();
    if (CVxDaLayerFilterMgr* manager = layerFilterMgr())
        manager->refreshFilters();
    m_dropdown->showDropdown(place.left, place.bottom, place.Width());
    return 0;
}

// What the host tells

LRESULT CVxDaFilterComboCtrl::onThemeChanged(WPARAM wParam, LPARAM lParam) {
    SetFont(dashboardFont());
    if (m_dropdown != nullptr)
        m_dropdown->SendMessage(WM_QRUI_THEME_CHANGED, wParam, lParam);
    return 0;
}

LRESULT CVxDaFilterComboCtrl::onDocument(WPARAM /*unused*/, LPARAM /*document*/) {
    refreshFilterCombos();
    return 0;
}

LRESULT CVxDaFilterComboCtrl::onSysVarChanged(WPARAM /*success*/, LPARAM name) {
    if (kLayerFilterEvents.variables.contains(eventNameFrom(name)))
        refreshFilterCombos();
    return 0;
}

LRESULT CVxDaFilterComboCtrl::onCommandEnded(WPARAM /*unused*/, LPARAM name) {
    if (kLayerFilterEvents.commands.contains(eventNameFrom(name)))
        refreshFilterCombos();
    return 0;
}
