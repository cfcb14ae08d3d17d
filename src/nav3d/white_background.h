#pragma once

#include <hostapi/window/gdi.h>

/// Fills what may be drawn on with white.
void fillWhite(HDC context);
