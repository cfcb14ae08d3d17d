#pragma once

#include <hostapi/types.h>

/// The scheme whose groups of tool palettes panels can be tied to.
constexpr const wchar_t* kToolPaletteScheme = L"ToolPaletteScheme";

/// Brings up the window of tool palettes; the module that has it is loaded if need be. Returns 0 if
/// tool palettes can't be had.
int showToolPalettes();

/// Brings up the tool palettes and turns them to a group. Returns 0 if tool palettes can't be had,
/// otherwise 1, for an unknown group too.
BOOL openToolPaletteGroup(const VxString& group);
