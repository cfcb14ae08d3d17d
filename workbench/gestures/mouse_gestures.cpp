#include "workbench/gestures/mouse_gestures.h"

#include "workbench/gestures/gesture_error.h"
#include "workbench/host/workbench.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

namespace workbench::gestures {

namespace {

Mouse& mouse() {
    return Workbench::current().toolkit().mouse();
}

/// The words by which a user knows a window.
std::string nameOf(HWND window) {
    const WindowSystem& windows = Workbench::current().windows();
    const Window* const found = windows.find(window);
    if (found == nullptr)
        return "a window that is gone";
    const std::string owner = windows.ownerName(window);
    return owner.empty() ? found->className : found->className + " of \"" + owner + "\"";
}

/// The deepest window at a point, which is changed to its client coordinates.
HWND target(HWND window, CPoint& point) {
    requireOnScreen(window);
    return mouse().windowAt(window, point);
}

}  // namespace

void requireOnScreen(HWND window) {
    if (!Workbench::current().windows().isOnScreen(window))
        throw GestureError(nameOf(window) + " is not on show");
}

CPoint middleOf(HWND window) {
    const CRect client = Workbench::current().windows().clientRect(window);
    return {client.Width() / 2, client.Height() / 2};
}

bool clickAt(HWND window, CPoint point) {
    const HWND deepest = target(window, point);
    return mouse().press(deepest, point) && mouse().release(deepest, point);
}

bool doubleClickAt(HWND window, CPoint point) {
    const HWND deepest = target(window, point);
    return mouse().doubleClick(deepest, point);
}

bool hoverAt(HWND window, CPoint point) {
    const HWND deepest = target(window, point);
    return mouse().move(deepest, point);
}

void leave() {
    mouse().leave();
}

bool turnWheel(HWND window, CPoint point, int notches) {
    const HWND deepest = target(window, point);
    return mouse().wheel(deepest, point, notches);
}

}  // namespace workbench::gestures
