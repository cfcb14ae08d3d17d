#pragma once

#include <hostapi/types.h>

class CQrUiToolPanel;
class CQrUiToolPanelItem;

/// Items that make up the row of a custom control. Each function does nothing and returns null or 0
/// for a null control.

/// Appends a row break.
BOOL addRowBreakItem(CQrUiToolPanel* control);
/// Appends a separator drawn as a gap.
BOOL addSeparatorItem(CQrUiToolPanel* control);
/// Appends an item that wraps a child window; nothing for a null window.
BOOL addControlItem(CQrUiToolPanel* control, HWND window);
/// Appends the control's icon item with the picture of a key in both sizes.
CQrUiToolPanelItem* addIconItem(CQrUiToolPanel* control, const wchar_t* itemId,
                                const wchar_t* imageKey);

/// Puts the picture of a key into an item's image slots. A key with a file extension is a file, any
/// other a resource of the resource library.
void setItemImages(CQrUiToolPanelItem& item, const VxString& imageKey);
