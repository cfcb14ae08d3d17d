#include "workbench/toolkit/focus_return.h"

#include "workbench/core/workbench.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

namespace workbench {

namespace {

bool isField(const WindowSystem& windows, HWND window) {
    const Window* const found = windows.find(window);
    return found != nullptr && found->widget != nullptr && found->widget->reportsFocus();
}

/// Whether all palettes of a set let the focus go. A palette asks its controls, which may end the
/// set: one that is gone doesn't agree.
bool palettesAgree(const CQrUiPaletteSet& set) {
    const auto& sets = Workbench::current().toolkit().paletteSets();
    for (std::size_t index = 0;; ++index) {
        const PaletteSetState* const state = sets.find(&set);
        if (state == nullptr)
            return false;
        if (index >= state->palettes.size())
            return true;
        if (!state->palettes[index]->CanFrameworkTakeFocus())
            return false;
    }
}

/// Takes the focus from within a set to the drawing view, if its palettes agree.
void takeFocusFrom(const CQrUiPaletteSet& set) {
    Toolkit& toolkit = Workbench::current().toolkit();
    if (palettesAgree(set))
        Workbench::current().windows().setFocus(toolkit.frame().drawingView().m_hWnd);
}

}  // namespace

void giveFocusBack(HWND from, HWND before) {
    const WindowSystem& windows = Workbench::current().windows();
    const CQrUiPaletteSet* const set = paletteSetAbove(from);
    const HWND focus = windows.focus();
    if (set == nullptr || focus == nullptr || !windows.isWithin(focus, set->m_hWnd))
        return;
    if (isField(windows, focus) && focus != before)
        return;
    takeFocusFrom(*set);
}

void giveFocusBackFromControl(HWND control, HWND before) {
    const WindowSystem& windows = Workbench::current().windows();
    const HWND focus = windows.focus();
    if (!isField(windows, focus) || !windows.isWithin(focus, control))
        giveFocusBack(control, before);
}

void giveFocusBackOnPress(HWND pressed) {
    const WindowSystem& windows = Workbench::current().windows();
    const HWND focus = windows.focus();
    if (isField(windows, focus) && !isField(windows, pressed))
        giveFocusBack(pressed, focus);
}

void giveFocusBackOnLeave(HWND paletteSet) {
    const WindowSystem& windows = Workbench::current().windows();
    const CQrUiPaletteSet* const set = paletteSetAbove(paletteSet);
    const HWND focus = windows.focus();
    if (set == nullptr || focus == nullptr || !windows.isWithin(focus, paletteSet) ||
        isField(windows, focus))
        return;
    takeFocusFrom(*set);
}

}  // namespace workbench
