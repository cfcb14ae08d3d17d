#include "layer/filter_dropdown.h"

#include "core/message_table.h"
#include "core/resources.h"
#include "core/theme.h"

#include <hostapi/qrui18/messages.h>
#include <hostapi/window/frame.h>
#include <hostapi/zorq/frame_windows.h>
#include <hostapi/zorq/layers.h>

#include <algorithm>

namespace {

constexpr const wchar_t* kWindowClass = L"Static";
constexpr DWORD kStyle = WS_POPUP | WS_BORDER;
constexpr DWORD kTreeStyle = WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES |
                             TVS_LINESATROOT | TVS_EDITLABELS | TVS_DISABLEDRAGDROP |
                             TVS_SHOWSELALWAYS | TVS_FULLROWSELECT;
constexpr DWORD kCheckStyle = WS_CHILD | WS_VISIBLE | BS_OWNERDRAW;
constexpr UINT kTreeId = 10001;
constexpr UINT kCheckId = 10002;
constexpr UINT kStrInvert = 261;
constexpr int kSpareRows = 2;
constexpr int kTallestTree = 250;  // pixels

bool isAtOrBelow(const CWnd* window, const CWnd& top) {
    while (window != nullptr && window != &top)
        window = window->GetParent();
    return window != nullptr;
}

}  // namespace

constexpr MessageEntry CVxDaLayerFilterComboDropdown::kMessages[] = {
    {WM_CREATE, to<&CVxDaLayerFilterComboDropdown::onCreate>},
    {WM_KILLFOCUS, to<&CVxDaLayerFilterComboDropdown::onFocusLost>},
    {WM_QRUI_THEME_CHANGED, to<&CVxDaLayerFilterComboDropdown::onThemeChanged>},
};
const MessageMap CVxDaLayerFilterComboDropdown::kMessageMap =
    makeMessageMap(&CVxDaLayerFilterComboDropdown::GetThisMessageMap, kMessages);

const MessageMap& CVxDaLayerFilterComboDropdown::GetMessageMap() const {
    return kMessageMap;
}

void CVxDaLayerFilterComboDropdown::create() {
    CreateEx(0, kWindowClass, nullptr, kStyle, {}, vxedGetZorqFrame(), 0);
}

LRESULT CVxDaLayerFilterComboDropdown::onCreate(WPARAM /*unused*/, LPARAM /*create*/) {
    if (Default() == -1)
        return -1;
    SetFont(dashboardFont());
    if (!m_tree.Create(kTreeStyle, {}, this, kTreeId))
        return -1;
    const VxString text = loadDashboardString(kStrInvert);
    if (!m_check.Create(text.c_str(), kCheckStyle, {}, this, kCheckId))
        return -1;
    m_tree.SetFont(dashboardFont());
    m_check.SetFont(dashboardFont());
    m_check.setBoxSize(m_combo.GetWindowRect().Height());
    return 0;
}

bool CVxDaLayerFilterComboDropdown::showDropdown(int left, int bottom, int width) {
    m_check.setChecked(vxedGetInvertLayerFilterFlag());
    if (!m_tree.rebuildTree())
        return false;
    const int height = treeHeight();
    const int boxSize = m_check.boxSize();
    m_tree.MoveWindow({0, 0, width, height});
    m_check.MoveWindow({0, height, width, height + boxSize});
    SetWindowPos(&wndNoTopMost, left, bottom, width, height + boxSize, SWP_SHOWWINDOW);
    m_tree.SetFocus();
    return true;
}

int CVxDaLayerFilterComboDropdown::treeHeight() const {
    int rows = 0;
    for (HTREEITEM item = m_tree.GetFirstVisibleItem(); item != nullptr;
         item = m_tree.GetNextVisibleItem(item))
        ++rows;
    return std::min(m_tree.GetItemHeight() * (rows + kSpareRows), kTallestTree);
}

void CVxDaLayerFilterComboDropdown::hideIfLeft() {
    if (!isAtOrBelow(GetFocus(), *this))
        hide();
}

void CVxDaLayerFilterComboDropdown::hide() {
    if (IsWindowVisible())
        ShowWindow(SW_HIDE);
}

LRESULT CVxDaLayerFilterComboDropdown::onFocusLost(WPARAM /*unused*/, LPARAM /*unusedToo*/) {
    const LRESULT answer = Default();
    hideIfLeft();
    return answer;
}

LRESULT CVxDaLayerFilterComboDropdown::onThemeChanged(WPARAM /*unused*/, LPARAM /*unusedToo*/) {
    for (CWnd* window :
         {static_cast<CWnd*>(this), static_cast<CWnd*>(&m_tree), static_cast<CWnd*>(&m_check)})
        window->SetFont(dashboardFont());
    return 0;
}
