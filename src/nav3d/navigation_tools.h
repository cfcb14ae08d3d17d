#pragma once

#include <optional>

class CQrUiToolPanelItem;

/// A click on one of the navigation tools; IDs are compared without regard to case. While a tool
/// runs, the host's navigation module is told; otherwise a tool sends its macro. Nothing for an item
/// of another family; otherwise 1, or 0 for a macro that the item doesn't have.
std::optional<int> clickNavigationTool(CQrUiToolPanelItem* item);
