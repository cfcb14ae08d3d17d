#include "workbench/toolkit/tree_layout.h"

namespace workbench {

namespace {

constexpr int kCharacterWidth = 7;  // pixels: each character has the same room
constexpr int kLabelMargin = 4;     // pixels left and right of the text

}  // namespace

TreeRowParts partsOfRow(const TreeRowSetup& setup, int top) {
    const int bottom = top + kTreeRowHeight;
    const int cells = setup.level + (setup.hasRootLine ? 1 : 0);
    int left = cells * kTreeIndent;
    TreeRowParts parts;
    if (setup.hasButton && cells > 0)
        parts.button = {left - kTreeIndent, top, left, bottom};
    if (setup.hasPicture) {
        const int gap = (kTreeRowHeight - kTreePicture) / 2;
        parts.picture = {left, top + gap, left + kTreePicture, top + gap + kTreePicture};
        left += kTreePicture;
    }
    const int width = static_cast<int>(setup.characters) * kCharacterWidth + 2 * kLabelMargin;
    parts.label = {left, top, left + width, bottom};
    return parts;
}

TreePart partAt(const TreeRowParts& parts, CPoint point) {
    if (parts.label.PtInRect(point))
        return TreePart::Label;
    if (point.x >= parts.label.right)
        return TreePart::Right;
    if (parts.button.PtInRect(point))
        return TreePart::Button;
    const bool isOnPicture = parts.picture.Width() > 0 && point.x >= parts.picture.left;
    return isOnPicture ? TreePart::Picture : TreePart::Indent;
}

}  // namespace workbench
