#pragma once

#include "palette/panel_record.h"

#include <hostapi/xmldom.h>

/// The panels' saved state: one element "CVxDaPanelSet" with an element "CVxDaPanel" for each panel,
/// which bears ID, menu group, visibility and the tool palette group that the panel is tied to.

/// Takes what is saved below a node over into the records, and into their panels. Entries that are
/// malformed, or name a panel that there is no record of, are skipped; a record without an entry
/// keeps what it has.
void readSavedPanels(IXMLDOMNode* node, PanelRecords& records);

/// Writes the records below a node. Returns false if the tree refuses a node. Raises `VxComError`.
bool writeSavedPanels(IXMLDOMNode* node, const PanelRecords& records);
