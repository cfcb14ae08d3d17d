#pragma once

/// Whether the view list is to follow every change of the view, also those that it caused itself.
/// False at start; set by other modules.
bool isNavUpdateForced();
void setNavUpdateForced(bool forced);
