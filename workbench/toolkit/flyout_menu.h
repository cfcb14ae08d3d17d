#pragma once

#include <hostapi/qrui18/tool_panel_item.h>

namespace workbench {

/// Opens the list of a flyout's tools and makes the chosen one the current tool, in nested flyouts
/// at each level. False if none was chosen.
bool openFlyout(CQrUiToolPanelItem& flyout);

}  // namespace workbench
