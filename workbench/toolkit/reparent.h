#pragma once

#include "workbench/windows/window_system.h"

namespace workbench {

/// Makes a window a child of another one, as its last child. A top window stays one; neither
/// is told.
void reparent(WindowSystem& windows, HWND window, HWND parent);

}  // namespace workbench
