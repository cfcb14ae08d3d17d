#pragma once

#include "workbench/resources/png_picture.h"

#include <hostapi/window/gdi.h>

namespace workbench {

/// The colour of a pixel, whatever its alpha; `CLR_INVALID` outside.
COLORREF colourAt(const PngPicture& picture, int x, int y);

/// The picture with all pixels of a colour made transparent; `CLR_INVALID` is the colour of none.
PngPicture withoutColour(PngPicture picture, COLORREF colour);

/// A picture of a size that shows nothing.
PngPicture emptyPicture(CSize size);

/// The part of a picture from a column on, as wide as `width`. What lies outside is transparent.
PngPicture columnsOf(const PngPicture& picture, int from, int width);

/// The picture at another size, each pixel as the nearest one of the old picture.
PngPicture scaled(const PngPicture& picture, CSize size);

}  // namespace workbench
