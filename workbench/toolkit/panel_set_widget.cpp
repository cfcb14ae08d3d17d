#include "workbench/toolkit/panel_set_widget.h"

#include "workbench/base/turn.h"
#include "workbench/toolkit/input_messages.h"
#include "workbench/toolkit/panel_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <cstdint>

namespace workbench {

namespace {

constexpr UINT kPlaceFlags = SWP_NOZORDER | SWP_NOACTIVATE;
constexpr int kPixelsOfANotch = 60;

CQrUiPanelSet& setOf(const Window& window) {
    return *static_cast<CQrUiPanelSet*>(window.object);
}

}  // namespace

WindowSystem& PanelSetWidget::windows() const {
    return m_toolkit.windows();
}

PanelSetState& PanelSetWidget::stateOf(const Window& window) const {
    return m_toolkit.panelSets().of(&setOf(window));
}

/// The pixels of the set that its parent shows.
int PanelSetWidget::shownHeight(const Window& window) const {
    const Window* const parent = windows().find(window.parent);
    const int own = window.rect.Height();
    return parent == nullptr ? own : std::min(own, parent->rect.Height() - window.rect.top);
}

void PanelSetWidget::layout(Window& window) {
    const Turn turn;
    const HWND handle = window.handle;
    stack(window);
    if (windows().find(handle) == nullptr)
        return;
    const int height = std::max(kEmptyHeight, stateOf(window).contentHeight);
    windows().place(
        handle, {window.rect.left, window.rect.top, window.rect.right, window.rect.top + height},
        kPlaceFlags);
    if (windows().find(handle) != nullptr)
        scrollTo(window, stateOf(window).scroll);
}

void PanelSetWidget::scrollTo(Window& window, int offset) {
    PanelSetState& state = stateOf(window);
    const int furthest = std::max(0, state.contentHeight - shownHeight(window));
    const int before = state.scroll;
    state.scroll = std::clamp(offset, 0, furthest);
    if (state.scroll != before)
        stack(window);
}

bool PanelSetWidget::handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                            LRESULT& answer) {
    switch (message) {
    case WM_SIZE:
        if (stateOf(window).laidOutWidth != window.rect.Width())
            setOf(window).UpdateLayout();
        return true;
    case kMouseWheel: {
        const int notches = static_cast<std::int16_t>(HIWORD(wParam)) / kWheelStep;
        scrollTo(window, stateOf(window).scroll - notches * kPixelsOfANotch);
        return true;
    }
    case kContextMenuMessage:
        answer = windows().send(window.parent, message, wParam, lParam);
        return true;
    case WM_QRUI_THEME_CHANGED:
        changeTheme(window, wParam, lParam);
        return true;
    default:
        return false;
    }
}

std::string PanelSetWidget::describe(const Window& window) const {
    const PanelSetState& state = stateOf(window);
    return std::to_string(state.panels.size()) + (state.panels.size() == 1 ? " panel" : " panels");
}

/// Stacks the panels at the set's width, from the scrolled top on.
void PanelSetWidget::stack(Window& window) {
    const HWND handle = window.handle;
    PanelSetState& state = stateOf(window);
    const int width = window.rect.Width();
    state.laidOutWidth = width;
    int height = 0;
    for (std::size_t index = 0; index < state.panels.size(); ++index) {
        const HWND panel = state.panels[index]->m_hWnd;
        Window* const below = windows().find(panel);
        if (below == nullptr || !below->hasVisibleStyle())
            continue;
        auto& widget = static_cast<PanelWidget&>(*below->widget);
        const int panelHeight = widget.layout(*below, width);
        if (windows().find(handle) == nullptr)
            return;
        const int top = height - state.scroll;
        windows().place(panel, {0, top, width, top + panelHeight}, kPlaceFlags);
        if (windows().find(handle) == nullptr)
            return;
        height += panelHeight;
    }
    state.contentHeight = height;
}

/// Hands the change on to the panels, shown or not, and lays out anew; a set whose height changed
/// by that reports its size to the palette.
void PanelSetWidget::changeTheme(Window& window, WPARAM wParam, LPARAM lParam) {
    const HWND handle = window.handle;
    const int before = window.rect.Height();
    const std::vector<HWND> children = window.children;
    for (const HWND child : children)
        windows().send(child, WM_QRUI_THEME_CHANGED, wParam, lParam);
    if (windows().find(handle) == nullptr)
        return;
    setOf(window).UpdateLayout();
    if (windows().find(handle) == nullptr || window.rect.Height() == before)
        return;
    const auto size =
        MAKELONG(static_cast<UINT>(window.rect.Width()), static_cast<UINT>(window.rect.Height()));
    windows().post(window.parent, WM_QRUI_POSITION, size, 0);
}

}  // namespace workbench
