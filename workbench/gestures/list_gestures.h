#pragma once

#include <hostapi/types.h>

/// What a user does with a list that drops down. Each raises `GestureError` for a window that is no
/// such list or is not on show, and answers false if it is disabled.
namespace workbench {
class Toolkit;
}

namespace workbench::gestures {

/// Opens the list, which may be open already.
bool openList(Toolkit& toolkit, HWND combo);
/// Opens the list, if need be, and chooses the entry at an index. Raises `GestureError` for an index
/// outside and for a separator; the list is closed then.
bool chooseFromList(Toolkit& toolkit, HWND combo, int index);
/// Closes the list without a choice.
bool closeList(Toolkit& toolkit, HWND combo);

}  // namespace workbench::gestures
