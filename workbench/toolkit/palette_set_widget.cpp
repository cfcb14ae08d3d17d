#include "workbench/toolkit/palette_set_widget.h"

#include "workbench/toolkit/context_menu.h"
#include "workbench/toolkit/input_messages.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>

namespace workbench {

namespace {

constexpr UINT kMoveCommand = 1;
constexpr UINT kSizeCommand = 2;
constexpr UINT kCloseCommand = 3;
constexpr UINT kAllowDockingCommand = 4;

CQrUiPaletteSet& setOf(const Window& window) {
    return *static_cast<CQrUiPaletteSet*>(window.object);
}

/// A number of the user's answer to a question for a place or a size; the present one without.
int numberOf(const Value& answer, const char* name, int present) {
    const Value* const given = answer.member(name);
    return given == nullptr ? present : static_cast<int>(given->asInteger());
}

}  // namespace

WindowSystem& PaletteSetWidget::windows() const {
    return m_toolkit.windows();
}

PaletteSetState& PaletteSetWidget::stateOf(const Window& window) const {
    return m_toolkit.paletteSets().of(&setOf(window));
}

void PaletteSetWidget::layout(const Window& window) {
    const PaletteSetState& state = stateOf(window);
    const int top = state.place.floating ? 0 : kGripHeight;
    const CRect inside{0, top, window.rect.Width(), std::max(top, window.rect.Height())};
    const HWND handle = window.handle;
    for (std::size_t index = 0; index < state.palettes.size(); ++index) {
        windows().place(state.palettes[index]->m_hWnd, inside, SWP_NOZORDER | SWP_NOACTIVATE);
        if (windows().find(handle) == nullptr)
            return;
    }
}

bool PaletteSetWidget::handle(Window& window, UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/,
                              LRESULT& /*answer*/) {
    switch (message) {
    case WM_SIZE:
        layout(window);
        return true;
    case WM_DESTROY:
        m_toolkit.frame().forget(setOf(window));
        return true;
    case kContextMenuMessage:
        openContextMenu(window);
        return true;
    default:
        return false;
    }
}

std::string PaletteSetWidget::describe(const Window& window) const {
    const BarPlace& place = stateOf(window).place;
    if (place.floating)
        return "floating";
    const std::string edge = place.edge == Edge::Left ? "left" : "right";
    return (place.anchored ? "anchored " : "docked ") + edge;
}

void PaletteSetWidget::openContextMenu(Window& window) {
    CMenu menu;
    if (menu.CreatePopupMenu() == 0)
        return;
    const UINT docking = stateOf(window).dockingAllowed ? MF_STRING | MF_CHECKED : MF_STRING;
    menu.AppendMenu(MF_STRING, kMoveCommand, L"Move");
    menu.AppendMenu(MF_STRING, kSizeCommand, L"Size");
    menu.AppendMenu(MF_STRING, kCloseCommand, L"Close");
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(docking, kAllowDockingCommand, L"Allow docking");
    menu.AppendMenu(MF_SEPARATOR);
    if (setOf(window).AddContextMenuItems(menu) == 0)
        return;
    runContextMenu(m_toolkit, window.handle, menu,
                   [this](Window& living, UINT command) { return runOwnCommand(living, command); });
}

/// Moves or sizes a set by the user's answer, a table of "x" and "y", or "width" and "height".
/// Without an answer the set stays where it is.
void PaletteSetWidget::moveOrSize(const Window& window) {
    const std::optional<Value> answer = m_toolkit.answers().take("dialog");
    if (!answer)
        return;
    MainFrame& frame = m_toolkit.frame();
    const BarPlace place = frame.placeOf(setOf(window));
    const CRect present = place.floating ? place.rect : windows().screenRect(window.handle);
    const int x = numberOf(*answer, "x", present.left);
    const int y = numberOf(*answer, "y", present.top);
    const int width = numberOf(*answer, "width", present.Width());
    const int height = numberOf(*answer, "height", present.Height());
    frame.floatAt(setOf(window), {x, y, x + width, y + height});
}

bool PaletteSetWidget::runOwnCommand(Window& window, UINT command) {
    switch (command) {
    case kMoveCommand:
    case kSizeCommand:
        moveOrSize(window);
        return true;
    case kCloseCommand:
        m_toolkit.frame().close(setOf(window));
        return true;
    case kAllowDockingCommand:
        stateOf(window).dockingAllowed = !stateOf(window).dockingAllowed;
        return true;
    default:
        return false;
    }
}

}  // namespace workbench
