#pragma once

#include <hostapi/types.h>

namespace workbench {

class Toolkit;
class WindowSystem;

/// Hands a key that means nothing to a control on. Tab goes to the next part of the palette
/// set or popup that takes the keyboard, with shift held to the one before; all others go to the
/// command line.
void passKeyOn(Toolkit& toolkit, WPARAM key, LPARAM details);

/// Where Tab goes from a window: to the field, slider, list, panel title or row of tools behind it in
/// the order of the window tree, the first again behind the last, or the other way round, among those
/// of its palette set or popup that take input; null for none.
HWND nextField(const WindowSystem& windows, HWND from, bool backwards = false);

/// Brings the keyboard there, if it may be taken from where it is; all of a field's text is selected
/// then. False if there is nowhere to go.
bool goToNextField(Toolkit& toolkit, HWND from, bool backwards);

}  // namespace workbench
