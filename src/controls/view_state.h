#pragma once

#include <optional>

/// What is known of the current viewport.

/// Its number; nothing if it can't be read.
std::optional<int> currentViewportNumber();
/// Whether it is the sheet of a layout.
bool IsPaperSpaceViewport();
/// Whether its view may not be changed. A viewport that can't be read counts as locked.
bool IsViewportLocked();
/// Whether its view is in perspective; while a navigation tool runs, whether the view that it shows
/// is.
bool IsPerspectiveView();
