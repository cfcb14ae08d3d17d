#pragma once

#include <hostapi/qrui18.h>

/// What a user does with the items of tool panels, and with panels.
namespace workbench {
class Toolkit;
}

namespace workbench::gestures {

/// Clicks an item; an item of a flyout is chosen from the flyout's list. False if the item, or the
/// flyout around it, is hidden or disabled. Raises `GestureError` if its panel is not on show.
bool clickItem(Toolkit& toolkit, CQrUiToolPanelItem& item);
/// Clicks the icon of a custom control, its first button; a control without one in its middle.
bool clickIcon(Toolkit& toolkit, HWND control);
/// Clicks a panel's title, which rolls it up or down.
bool clickTitle(Toolkit& toolkit, CQrUiPanel& panel);
/// Clicks a panel's image twice, which opens what the panel is tied to.
bool doubleClickImage(Toolkit& toolkit, CQrUiPanel& panel);

}  // namespace workbench::gestures
