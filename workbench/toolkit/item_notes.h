#pragma once

#include "workbench/core/journal.h"

#include <hostapi/qrui18/tool_panel_item.h>

#include <string_view>

namespace workbench {

/// Whether changes of an item are visible: it, or the flyout around it, stands on a panel.
bool isSeen(const CQrUiToolPanelItem& item);
/// Whether a change of the item has to be noted now.
bool isNoted(const Journal& journal, const CQrUiToolPanelItem& item);
/// Notes a change of a field in the journal; equal values are left out.
void noteItem(Journal& journal, const CQrUiToolPanelItem& item, std::string_view field,
              Value before, Value after);
/// Notes the bits of the state that differ.
void noteItemState(Journal& journal, const CQrUiToolPanelItem& item, UINT before, UINT after);

}  // namespace workbench
