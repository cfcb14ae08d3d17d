#include "workbench/toolkit/panel_widget.h"

#include "workbench/base/turn.h"
#include "workbench/toolkit/context_menu.h"
#include "workbench/toolkit/input_messages.h"
#include "workbench/toolkit/key_road.h"
#include "workbench/toolkit/panel_set_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <utility>

namespace workbench {

namespace {

constexpr UINT kCollapseCommand = 1;

CQrUiPanel& panelOf(const Window& window) {
    return *static_cast<CQrUiPanel*>(window.object);
}

bool isOnTitle(CPoint point) {
    return point.y >= 0 && point.y < PanelWidget::kTitleHeight;
}

bool isOnImage(CPoint point) {
    return isOnTitle(point) && point.x < PanelWidget::kImageAreaWidth;
}

}  // namespace

WindowSystem& PanelWidget::windows() const {
    return m_toolkit.windows();
}

PanelState& PanelWidget::stateOf(const Window& window) const {
    return m_toolkit.panels().of(&panelOf(window));
}

int PanelWidget::layout(Window& window, int width) {
    const Turn turn;
    const HWND handle = window.handle;
    const PanelState& state = stateOf(window);
    int bottom = kTitleHeight;
    for (std::size_t index = 0; index < state.toolPanels.size() && !state.collapsed; ++index) {
        CQrUiToolPanel& toolPanel = *state.toolPanels[index];
        const Window* const below = windows().find(toolPanel.m_hWnd);
        if (below == nullptr)
            continue;
        windows().place(below->handle, {0, bottom, width, bottom + below->rect.Height()},
                        SWP_NOZORDER | SWP_NOACTIVATE);
        if (windows().find(handle) == nullptr)
            return 0;
        toolPanel.UpdateLayout(0);
        if (windows().find(handle) == nullptr)
            return 0;
        bottom += windows().screenRect(toolPanel.m_hWnd).Height();
    }
    return bottom;
}

void PanelWidget::collapse(Window& window, bool collapsed) {
    const Turn turn;
    PanelState& state = stateOf(window);
    if (state.collapsed == collapsed)
        return;
    state.collapsed = collapsed;
    windows().changes().note(window.handle, "collapsed", !collapsed, collapsed);
    CQrUiPanel& panel = panelOf(window);
    const HWND handle = window.handle;
    const HWND parent = window.parent;
    for (std::size_t index = 0; index < state.toolPanels.size(); ++index) {
        // A field that is hidden loses the focus, and its control may do anything then.
        windows().show(state.toolPanels[index]->m_hWnd, !collapsed);
        if (windows().find(handle) == nullptr)
            return;
    }
    const Window* const set = windows().find(parent);
    if (set == nullptr || dynamic_cast<const PanelSetWidget*>(set->widget.get()) == nullptr)
        return;
    auto& panelSet = *static_cast<CQrUiPanelSet*>(set->object);
    if (collapsed)
        panelSet.OnPanelCollapsed(&panel);
    else
        panelSet.OnPanelExpanded(&panel);
}

bool PanelWidget::handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                         LRESULT& answer) {
    const CPoint point = unpackPoint(lParam);
    switch (message) {
    case kLeftButtonDown:
        m_titlePressed = isOnTitle(point) && !isOnImage(point);
        return true;
    case kLeftButtonUp:
        if (std::exchange(m_titlePressed, false) && isOnTitle(point) && !isOnImage(point))
            collapse(window, !stateOf(window).collapsed);
        return true;
    case kLeftButtonDoubleClick:
        if (isOnImage(point))
            panelOf(window).OnActivatePanel();
        return true;
    case WM_KEYDOWN:
        if (!key(window, wParam))
            passKeyOn(m_toolkit, wParam, lParam);
        return true;
    case kContextMenuMessage:
        openContextMenu(window);
        return true;
    case kMouseWheel:
        answer = windows().send(window.parent, message, wParam, lParam);
        return true;
    case WM_QRUI_THEME_CHANGED:
        changeTheme(window, wParam, lParam);
        return true;
    default:
        return false;
    }
}

/// False for a key that means nothing on a title.
bool PanelWidget::key(Window& window, WPARAM key) {
    switch (key) {
    case VK_RETURN:
        collapse(window, !stateOf(window).collapsed);
        return true;
    case kKeyLeft:
        collapse(window, true);
        return true;
    case kKeyRight:
        collapse(window, false);
        return true;
    default:
        return false;
    }
}

std::string PanelWidget::describe(const Window& window) const {
    return stateOf(window).collapsed ? "collapsed" : "";
}

void PanelWidget::openContextMenu(Window& window) {
    CMenu menu;
    if (menu.CreatePopupMenu() == 0)
        return;
    const bool collapsed = stateOf(window).collapsed;
    menu.AppendMenu(MF_STRING, kCollapseCommand, collapsed ? L"Expand" : L"Collapse");
    if (panelOf(window).AddContextMenuItems(menu) == 0)
        return;
    runContextMenu(m_toolkit, window.handle, menu, [this, collapsed](Window& panel, UINT command) {
        if (command == kCollapseCommand)
            collapse(panel, !collapsed);
        return command == kCollapseCommand;
    });
}

void PanelWidget::changeTheme(const Window& window, WPARAM wParam, LPARAM lParam) {
    const std::vector<HWND> children = window.children;
    for (const HWND child : children)
        windows().send(child, WM_QRUI_THEME_CHANGED, wParam, lParam);
}

}  // namespace workbench
