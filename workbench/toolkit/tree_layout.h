#pragma once

#include <hostapi/window.h>

#include <cstddef>

namespace workbench {

constexpr int kTreeRowHeight = 18;  ///< Pixels.
constexpr int kTreeIndent = 16;     ///< Pixels a level; the room of an item's button is as wide.
constexpr int kTreePicture = 16;    ///< Pixels.

/// What a row of a tree consists of.
struct TreeRowSetup {
    int level = 0;             ///< how many items stand above its own
    bool hasButton = false;    ///< a click there opens or closes the item
    bool hasRootLine = false;  ///< the top level leaves room for lines and buttons too
    bool hasPicture = false;
    std::size_t characters = 0;  ///< of the label
};

/// Where the parts of a row are, in the tree's client area.
struct TreeRowParts {
    CRect button;   ///< empty: the item has none
    CRect picture;  ///< empty: the tree has none
    CRect label;
};
/// `top` is where the row begins.
TreeRowParts partsOfRow(const TreeRowSetup& setup, int top);

/// What of a row a point is on, in the order of the window system's numbers.
enum class TreePart { Picture, Label, Indent, Button, Right };
TreePart partAt(const TreeRowParts& parts, CPoint point);

}  // namespace workbench
