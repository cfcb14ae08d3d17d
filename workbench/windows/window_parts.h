#pragma once

#include "workbench/windows/window_tree.h"

#include <hostapi/window.h>

#include <string>

namespace workbench {

/// The name of a window as a part of the nearest named one above it: "slider" for its first
/// slider, "edit2" for its second edit field, and so on. Empty for a window that is named itself or
/// stands in no named one.
std::string partName(const WindowTree& windows, HWND window);

/// The window that is a part of `owner` under a name; null for none.
HWND findPart(const WindowTree& windows, HWND owner, const std::string& part);

/// By what name the journal tells a window's messages: its own, "MainFrame" for the main window, that
/// of the named window around it with ".tooltip" behind it for a tooltip; empty for all others, whose
/// messages aren't told.
std::string journalName(const WindowTree& windows, const Window& window);

}  // namespace workbench
