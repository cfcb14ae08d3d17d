#pragma once

#include <hostapi/window/menu.h>

/// Appends a line that is labelled with a string of the resource library.
void appendCommand(CMenu& menu, UINT command, UINT label);
/// Appends a popup that is labelled with a string of the resource library.
void appendPopup(CMenu& menu, const CMenu& popup, UINT label);
