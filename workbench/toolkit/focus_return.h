#pragma once

#include <hostapi/types.h>

namespace workbench {

class Toolkit;

/// Whether a gesture may give a window the keyboard focus: within the custom control that has it
/// always; elsewhere only if the palettes of that control's set agree and none of the controls
/// around the focus has dropped a list (`WM_QRUI_LIST_DROPPED`).
bool mayTakeFocus(Toolkit& toolkit, HWND window);
/// Gives a window the focus for a gesture on it, if that may be. Whether it has it then.
bool takeFocus(Toolkit& toolkit, HWND window);

/// The toolkit takes the keyboard focus back to the drawing view after a gesture in a palette set,
/// if it may be taken. `from` is the window of the gesture, `before` the window that
/// had the focus when it began. An edit field keeps the focus if the gesture gave it to the field.
void giveFocusBack(Toolkit& toolkit, HWND from, HWND before);

/// The same after a click within a custom control: its own edit fields keep the focus, since the
/// click may have been meant to bring the user there.
void giveFocusBackFromControl(Toolkit& toolkit, HWND control, HWND before);

/// The same when the mouse presses on something other than a field: the user leaves the field with
/// the focus before anything comes of the press.
void giveFocusBackOnPress(Toolkit& toolkit, HWND pressed);

/// The same when the mouse leaves a palette set: a field that the user types in keeps the focus.
void giveFocusBackOnLeave(Toolkit& toolkit, HWND paletteSet);

/// A press on something beside a popup that has the focus brings it to the drawing view: the user
/// works in another window now. The control that opened the popup may be pressed, to close it.
void leavePopupOnPress(Toolkit& toolkit, HWND pressed);

}  // namespace workbench
