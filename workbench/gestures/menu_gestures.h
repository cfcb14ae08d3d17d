#pragma once

#include "workbench/windows/menu_table.h"

#include <hostapi/types.h>
#include <hostapi/window/geometry.h>

#include <cstddef>
#include <string>
#include <vector>

/// What a user does with context menus.
namespace workbench {
class Toolkit;
}

namespace workbench::gestures {

/// On the title of panels and palette sets.
inline constexpr CPoint kOnTitle{40, 6};

/// Opens the context menu at a point of a window, of a panel or palette set at its title, reads it and
/// closes it. Raises `GestureError` if none opens.
std::vector<MenuLine> readContextMenu(Toolkit& toolkit, HWND window, CPoint point = kOnTitle);
/// Opens the context menu and chooses the line under a path of labels, such as "Panels/Layers".
/// Raises `GestureError` if there is no such line.
void chooseFromContextMenu(Toolkit& toolkit, HWND window, const std::wstring& path,
                           CPoint point = kOnTitle);
/// The same by the line's number from 1 on, as `linesInOrder` counts them.
void chooseLineOfContextMenu(Toolkit& toolkit, HWND window, std::size_t number,
                             CPoint point = kOnTitle);

/// A line of a menu or of one of its popups.
struct PlacedLine {
    std::wstring
        path;  ///< its label behind those of the popups that it stands in; "-" for a separator
    const MenuLine* line;  ///< of the menu that was read
};
/// All lines as they stand below each other, those of a popup behind the popup's own.
std::vector<PlacedLine> linesInOrder(const std::vector<MenuLine>& menu);

}  // namespace workbench::gestures
