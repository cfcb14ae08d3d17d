#include "workbench/toolkit/system_colours.h"

#include <hostapi/window/gdi.h>

#include <algorithm>
#include <iterator>

namespace workbench {

namespace {

struct ColourRow {
    int index;
    COLORREF light;
    COLORREF dark;
};
constexpr ColourRow kColours[] = {
    {COLOR_WINDOWTEXT, 0x201810, 0xf6f3f0},
    {COLOR_HIGHLIGHT, 0xc46f1a, 0xe89f4f},
    {COLOR_HIGHLIGHTTEXT, 0xffffff, 0x20160b},
};

}  // namespace

COLORREF systemColour(Shade shade, int index) {
    const auto* const row =
        std::find_if(std::begin(kColours), std::end(kColours),
                     [index](const ColourRow& each) { return each.index == index; });
    if (row == std::end(kColours))
        return 0;
    return shade == Shade::Dark ? row->dark : row->light;
}

}  // namespace workbench
