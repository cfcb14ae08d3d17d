#pragma once

#include <hostapi/qrui18/tool_panel_item.h>

#include <vector>

namespace workbench {

class Toolkit;

/// Opens the list of a flyout's tools and makes the chosen one the current tool, in nested flyouts
/// at each level. False if none was chosen.
bool openFlyout(Toolkit& toolkit, CQrUiToolPanelItem& flyout);

/// The tools that a flyout's list offers, those of nested flyouts in their place. The commands of
/// the list's lines count them from 1.
std::vector<CQrUiToolPanelItem*> offeredTools(const Toolkit& toolkit,
                                              const CQrUiToolPanelItem& flyout);

}  // namespace workbench
