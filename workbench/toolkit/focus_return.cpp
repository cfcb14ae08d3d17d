#include "workbench/toolkit/focus_return.h"

#include "workbench/base/turn.h"
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
bool palettesAgree(Toolkit& toolkit, const CQrUiPaletteSet& set) {
    const Turn turn;
    const auto& sets = toolkit.paletteSets();
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
void takeFocusFrom(Toolkit& toolkit, const CQrUiPaletteSet& set) {
    if (palettesAgree(toolkit, set))
        toolkit.windows().setFocus(toolkit.frame().drawingView().m_hWnd);
}

}  // namespace

void giveFocusBack(Toolkit& toolkit, HWND from, HWND before) {
    const WindowSystem& windows = toolkit.windows();
    const CQrUiPaletteSet* const set = paletteSetAbove(windows, from);
    const HWND focus = windows.focus();
    if (set == nullptr || focus == nullptr || !windows.isWithin(focus, set->m_hWnd))
        return;
    if (isField(windows, focus) && focus != before)
        return;
    takeFocusFrom(toolkit, *set);
}

void giveFocusBackFromControl(Toolkit& toolkit, HWND control, HWND before) {
    const WindowSystem& windows = toolkit.windows();
    const HWND focus = windows.focus();
    if (!isField(windows, focus) || !windows.isWithin(focus, control))
        giveFocusBack(toolkit, control, before);
}

void giveFocusBackOnPress(Toolkit& toolkit, HWND pressed) {
    const WindowSystem& windows = toolkit.windows();
    const HWND focus = windows.focus();
    if (isField(windows, focus) && !isField(windows, pressed))
        giveFocusBack(toolkit, pressed, focus);
}

void giveFocusBackOnLeave(Toolkit& toolkit, HWND paletteSet) {
    const WindowSystem& windows = toolkit.windows();
    const CQrUiPaletteSet* const set = paletteSetAbove(windows, paletteSet);
    const HWND focus = windows.focus();
    if (set == nullptr || focus == nullptr || !windows.isWithin(focus, paletteSet) ||
        isField(windows, focus))
        return;
    takeFocusFrom(toolkit, *set);
}

}  // namespace workbench
