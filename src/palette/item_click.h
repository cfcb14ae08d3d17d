#pragma once

class CQrUiToolPanelItem;

/// Carries out a click on an item: a flyout acts as its current tool, a separator or row break not
/// at all; an item with a module goes to that module, any other one runs its macro. Returns 0 for
/// no item, for a flyout without a current tool and for an item without menu data, otherwise 1.
int dispatchItemClick(CQrUiToolPanelItem* item);
