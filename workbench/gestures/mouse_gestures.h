#pragma once

#include <hostapi/types.h>
#include <hostapi/window/geometry.h>

/// What a user does with the mouse. Points are in the client coordinates of the window; the gesture
/// goes to the deepest window there. A disabled window gets nothing and the gesture answers false;
/// a window that is not on show raises `GestureError`.
namespace workbench {
class Toolkit;
}

namespace workbench::gestures {

/// Raises `GestureError` unless the window is on the screen.
void requireOnScreen(Toolkit& toolkit, HWND window);
/// The middle of a window's client area.
CPoint middleOf(Toolkit& toolkit, HWND window);

bool clickAt(Toolkit& toolkit, HWND window, CPoint point);
bool doubleClickAt(Toolkit& toolkit, HWND window, CPoint point);
/// Moves over a point without a button; a tooltip comes up once the clock has run on.
bool hoverAt(Toolkit& toolkit, HWND window, CPoint point);
/// Leaves the window that the mouse is over.
void leave(Toolkit& toolkit);
/// Turns the wheel by notches, forward above 0.
bool turnWheel(Toolkit& toolkit, HWND window, CPoint point, int notches);

}  // namespace workbench::gestures
