#pragma once

#include "workbench/windows/menu_table.h"

#include <hostapi/types.h>

#include <string>
#include <vector>

/// What a user does with context menus.
namespace workbench {
class Toolkit;
}

namespace workbench::gestures {

/// Opens the context menu of a panel or palette set, reads it and closes it. Raises `GestureError`
/// if none opens.
std::vector<MenuLine> readContextMenu(Toolkit& toolkit, HWND window);
/// Opens the context menu and chooses the line under a path of labels, such as "Panels/Layers".
/// Raises `GestureError` if there is no such line.
void chooseFromContextMenu(Toolkit& toolkit, HWND window, const std::wstring& path);

}  // namespace workbench::gestures
