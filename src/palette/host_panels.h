#pragma once

#include "palette/panel_record.h"

#include <hostapi/vxdashboard.h>

/// What the host's menu data and its workspace say of panels.

/// Appends a record for each panel that the host knows, in its order; false without menu data.
bool readPanelRecords(PanelRecords& records);
/// The panels that the current workspace shows, in its order; false, and `list` as it was, without
/// workspace data.
bool readWorkspacePanels(VxDaPanelList& list);
