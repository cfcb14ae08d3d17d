#include "workbench/toolkit/focus_return.h"

#include "workbench/base/turn.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <vector>

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

/// The custom controls around a window, the nearest first.
std::vector<HWND> controlsAround(const WindowSystem& windows, HWND window) {
    std::vector<HWND> controls;
    for (const Window* found = windows.find(window); found != nullptr;
         found = windows.find(found->parent)) {
        if (isCustomControl(windows, found->handle))
            controls.push_back(found->handle);
    }
    return controls;
}

/// Whether a control around the window with the focus has a list on show that needs it.
bool hasListDropped(WindowSystem& windows, HWND focus) {
    const std::vector<HWND> controls = controlsAround(windows, focus);
    return std::any_of(controls.begin(), controls.end(), [&windows](HWND control) {
        return windows.send(control, WM_QRUI_LIST_DROPPED, 0, 0) != 0;
    });
}

/// Whether the focus may be taken from within a set.
bool isFocusFree(Toolkit& toolkit, const CQrUiPaletteSet& set) {
    return palettesAgree(toolkit, set) &&
           !hasListDropped(toolkit.windows(), toolkit.windows().focus());
}

/// Takes the focus from within a set to the drawing view, if it is free.
void takeFocusFrom(Toolkit& toolkit, const CQrUiPaletteSet& set) {
    if (isFocusFree(toolkit, set))
        toolkit.windows().setFocus(toolkit.frame().drawingView().m_hWnd);
}

}  // namespace

bool mayTakeFocus(Toolkit& toolkit, HWND window) {
    const Turn turn;
    const WindowSystem& windows = toolkit.windows();
    const HWND focus = windows.focus();
    const CQrUiPaletteSet* const set = paletteSetAbove(windows, focus);
    if (set == nullptr || focus == window)
        return true;
    const std::vector<HWND> controls = controlsAround(windows, focus);
    if (!controls.empty() && windows.isWithin(window, controls.back()))
        return true;
    return isFocusFree(toolkit, *set);
}

bool takeFocus(Toolkit& toolkit, HWND window) {
    return mayTakeFocus(toolkit, window) && toolkit.windows().setFocus(window);
}

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

void leavePopupOnPress(Toolkit& toolkit, HWND pressed) {
    WindowSystem& windows = toolkit.windows();
    const Window* const popup = windows.find(windows.popupAbove(windows.focus()));
    if (popup == nullptr || windows.isWithin(pressed, popup->handle) ||
        (popup->opener != nullptr && windows.isWithin(pressed, popup->opener)))
        return;
    windows.setFocus(toolkit.frame().drawingView().m_hWnd);
}

}  // namespace workbench
