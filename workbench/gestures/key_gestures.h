#pragma once

#include <hostapi/types.h>

#include <string>
#include <string_view>
#include <vector>

/// What a user does with the keyboard: keys go to the window with the focus.
namespace workbench {
class Toolkit;
}

namespace workbench::gestures {

/// Clicks into an edit field. False if it is disabled; raises `GestureError` if it is not on show.
bool focusField(Toolkit& toolkit, HWND field);
/// Types a text into the window with the focus.
void typeText(Toolkit& toolkit, std::wstring_view text);
/// Selects all of the field with the focus and types a text over it.
void replaceText(Toolkit& toolkit, std::wstring_view text);
/// Presses a key by its name: "enter", "escape", "tab", "left", "right", "up", "down", "home",
/// "end", "pageup", "pagedown", "backspace", "delete", "f1", "f2". Raises `GestureError` for another name.
/// `window` gets the key in place of the window with the focus, unless it is null.
void pressKey(Toolkit& toolkit, std::string_view name, HWND window = nullptr);
/// The names that `pressKey` takes.
std::vector<std::string> keyNames();
/// Holds a key down during the gestures to come, or lets it go: "shift". Raises `GestureError` for
/// another name.
void holdKey(Toolkit& toolkit, std::string_view name, bool down);
/// Clicks into the drawing view, so that the dashboard loses the focus.
void blur(Toolkit& toolkit);

}  // namespace workbench::gestures
