#pragma once

#include "workbench/toolkit/shade.h"

#include <hostapi/types.h>

namespace workbench {

/// A colour of the user's theme by its number (`COLOR_...`); black for an unknown one.
COLORREF systemColour(Shade shade, int index);

}  // namespace workbench
