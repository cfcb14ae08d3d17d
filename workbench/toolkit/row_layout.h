#pragma once

#include <hostapi/window/geometry.h>

#include <cstddef>
#include <functional>
#include <vector>

namespace workbench {

/// What a tool panel's layout knows of an item.
struct RowItem {
    enum class Kind { Button, Flyout, Control, Separator, RowBreak };
    Kind kind = Kind::Button;
    bool hidden = false;  ///< Takes no place.
    bool alone = false;   ///< A control that shares its row with no other item.
};

/// The measures of a tool panel's rows.
struct RowMetrics {
    int iconSize = 16;  ///< Pixels, 16 or 32.
    int indent = 0;     ///< Pixels left free at the left of each row.
};

/// Where items stand.
struct RowLayout {
    std::vector<CRect> items;  ///< One an item, in client coordinates; hidden ones are empty.
    int height = 0;            ///< Of all rows, in pixels.
};

constexpr int kButtonBorder = 3;          ///< Pixels around a button's icon.
constexpr int kFlyoutArrowWidth = 12;     ///< Pixels right of a flyout's icon.
constexpr int kSeparatorWidth = 6;        ///< Pixels.
constexpr int kMinimumControlWidth = 40;  ///< Pixels; a narrower rest of a row starts a new one.
constexpr int kRowGap = 2;                ///< Pixels between two rows.

/// Lays items out in rows of a width. Buttons, flyouts and separators have fixed widths, controls
/// share the rest of their row; what doesn't fit begins a new row, and so does a row break, and
/// what stands before and behind a control that stands alone.
/// `heightOf` gives the height of the control at an index for a width.
RowLayout layoutRows(const std::vector<RowItem>& items, int width, const RowMetrics& metrics,
                     const std::function<int(std::size_t index, int width)>& heightOf);

}  // namespace workbench
