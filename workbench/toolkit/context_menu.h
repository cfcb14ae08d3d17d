#pragma once

#include "workbench/windows/window.h"

#include <hostapi/window.h>

#include <functional>

namespace workbench {

class Toolkit;

/// Shows a context menu of a window. The choice goes to `own` first, which answers true for a
/// command of the toolkit's own, and otherwise to the window as `WM_COMMAND`. Afterwards the focus
/// goes back to the drawing view.
void runContextMenu(Toolkit& toolkit, HWND window, const CMenu& menu,
                    const std::function<bool(Window& window, UINT command)>& own);

}  // namespace workbench
