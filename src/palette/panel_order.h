#pragma once

#include "palette/panel_record.h"

#include <hostapi/vxdashboard.h>

#include <vector>

/// The records that a workspace's list names, in its order; each record once, even if it is named
/// twice. Not owned.
std::vector<PanelRecord*> recordsInList(const PanelRecords& records, const VxDaPanelList& list);

/// Orders records as a workspace's list does; those that it doesn't name follow in their own order.
void orderByList(PanelRecords& records, const VxDaPanelList& list);
