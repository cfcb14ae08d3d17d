#pragma once

#include <hostapi/types.h>

#include <string>
#include <string_view>

namespace workbench {

class WindowSystem;

/// The name of a popup that is made now: the name of the control in whose handler that is, with
/// ".dropdown" behind it; empty outside of all controls.
std::string nameOfNewDropdown(WindowSystem& windows);
/// The name of a part of a control's dropdown that is made in a window: the control's with "." and a
/// word behind it, such as "LayerFilterComboControl.tree"; empty elsewhere.
std::string nameOfDropdownPart(const WindowSystem& windows, HWND parent, std::string_view word);

/// The tree in a popup that is on show: of the control's own dropdown if it is, or else of any; null
/// for none.
HWND findDroppedTree(const WindowSystem& windows, HWND control);
/// The button beside a tree in its popup; null for none.
HWND findButtonBeside(const WindowSystem& windows, HWND tree);

}  // namespace workbench
