#pragma once

class CQrUiToolPanelItem;

/// Sends an item's macro to the active document. Returns 0 for an item without data or macro.
int sendItemMacro(CQrUiToolPanelItem* item);
