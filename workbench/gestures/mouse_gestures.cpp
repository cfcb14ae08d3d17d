#include "workbench/gestures/mouse_gestures.h"

#include "workbench/gestures/gesture_error.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

namespace workbench::gestures {

namespace {

/// The words by which a user knows a window.
std::string nameOf(const WindowSystem& windows, HWND window) {
    const Window* const found = windows.find(window);
    if (found == nullptr)
        return "a window that is gone";
    const std::string owner = windows.ownerName(window);
    return owner.empty() ? found->className : found->className + " of \"" + owner + "\"";
}

/// The deepest window at a point, which is changed to its client coordinates.
HWND target(Toolkit& toolkit, HWND window, CPoint& point) {
    requireOnScreen(toolkit, window);
    return toolkit.mouse().windowAt(window, point);
}

}  // namespace

void requireOnScreen(Toolkit& toolkit, HWND window) {
    if (!toolkit.windows().isOnScreen(window))
        throw GestureError(nameOf(toolkit.windows(), window) + " is not on show");
}

CPoint middleOf(Toolkit& toolkit, HWND window) {
    const CRect client = toolkit.windows().clientRect(window);
    return {client.Width() / 2, client.Height() / 2};
}

bool clickAt(Toolkit& toolkit, HWND window, CPoint point) {
    const HWND deepest = target(toolkit, window, point);
    return toolkit.mouse().press(deepest, point) && toolkit.mouse().release(deepest, point);
}

bool doubleClickAt(Toolkit& toolkit, HWND window, CPoint point) {
    const HWND deepest = target(toolkit, window, point);
    return toolkit.mouse().doubleClick(deepest, point);
}

bool hoverAt(Toolkit& toolkit, HWND window, CPoint point) {
    const HWND deepest = target(toolkit, window, point);
    return toolkit.mouse().move(deepest, point);
}

void leave(Toolkit& toolkit) {
    toolkit.mouse().leave();
}

bool turnWheel(Toolkit& toolkit, HWND window, CPoint point, int notches) {
    const HWND deepest = target(toolkit, window, point);
    return toolkit.mouse().wheel(deepest, point, notches);
}

}  // namespace workbench::gestures
