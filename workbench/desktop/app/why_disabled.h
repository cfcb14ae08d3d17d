#pragma once

#include <hostapi/types.h>

#include <QString>

namespace workbench {
class Workbench;
}

namespace workbench::desktop {

/// Why a disabled part of the dashboard can't be used, as the host's state tells it; empty where that
/// tells no reason.
QString whyDisabled(Workbench& workbench, HWND window);

}  // namespace workbench::desktop
