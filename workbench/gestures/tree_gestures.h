#pragma once

#include "workbench/gestures/menu_gestures.h"
#include "workbench/toolkit/tree_widget.h"

#include <hostapi/types.h>

#include <string>
#include <string_view>
#include <vector>

/// What a user does with a tree. Each raises `GestureError` if the tree is not on show or the item has
/// gone.
namespace workbench {
class Toolkit;
}

namespace workbench::gestures {

/// The tree of a window. Raises `GestureError` if it has none.
TreeWidget& treeOf(Toolkit& toolkit, HWND tree);
/// The item under a path of labels such as "All/Walls"; a label may hold a "/" itself. Null for none.
HTREEITEM findNode(const TreeItems& items, std::wstring_view path, HTREEITEM below = nullptr);

/// Opens what an item stands in, by clicks on the buttons, and scrolls it into view.
void showNode(Toolkit& toolkit, HWND tree, HTREEITEM node);
/// Clicks an item's label.
bool clickNode(Toolkit& toolkit, HWND tree, HTREEITEM node);
/// Goes to an item by the arrow keys, edits its label with F2 unless it is edited already, and ends that
/// with Enter. Raises
/// `GestureError` if the tree hasn't got the keyboard or its labels can't be edited.
void renameNode(Toolkit& toolkit, HWND tree, HTREEITEM node, std::wstring_view text);
/// The middle of an item's label, which is on show then: where a user clicks.
CPoint labelOf(Toolkit& toolkit, HWND tree, HTREEITEM node);

}  // namespace workbench::gestures
