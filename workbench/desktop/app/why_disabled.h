#pragma once

#include <hostapi/types.h>

#include <QString>

namespace workbench {
class Workbench;
}

class CQrUiToolPanelItem;

namespace workbench::desktop {

/// Why a disabled part of the dashboard can't be used, as the host's state tells it; empty where that
/// tells no reason. The item is the window's that is meant, null for the window as a whole.
QString whyDisabled(Workbench& workbench, HWND window, const CQrUiToolPanelItem* item);

}  // namespace workbench::desktop
