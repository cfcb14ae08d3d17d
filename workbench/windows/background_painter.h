#pragma once

#include <hostapi/window.h>

#include <optional>

namespace workbench {

class WindowSystem;

/// Has a window erase its background, as before it is drawn, and gives the colour that it fills its
/// client area with; nothing if it leaves the background to the toolkit.
std::optional<COLORREF> paintBackground(WindowSystem& windows, HWND window);

}  // namespace workbench
