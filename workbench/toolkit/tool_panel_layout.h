#pragma once

#include "workbench/toolkit/row_layout.h"

#include <hostapi/qrui18.h>

#include <vector>

namespace workbench {

class Toolkit;
class WindowSystem;

/// Asks the custom controls on a tool panel that weren't asked yet whether they share their row
/// with other items (`WM_QRUI_ROW_QUERY`). The answers are kept. False if the panel ended meanwhile.
bool askControls(Toolkit& toolkit, const CQrUiToolPanel& panel);
/// The items of a tool panel as its row layout takes them.
std::vector<RowItem> rowItemsOf(const CQrUiToolPanel& panel);
/// The height that the window of a control item wants at a width; 0 without a window.
int controlHeight(const WindowSystem& windows, const CQrUiToolPanelItem& item, int width);
/// Puts an item at its place, its control's window too. A control is hidden and shown along with
/// its item, and a custom control renews its own layout.
void placeItem(Toolkit& toolkit, CQrUiToolPanelItem& item, const CRect& rect);

}  // namespace workbench
