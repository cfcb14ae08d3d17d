#pragma once

#include "workbench/drawing/database/database.h"

namespace workbench {

/// \name The sky behind a view
/// 0 is off, 1 the sky as background, 2 the sky as background that gives light.
/// @{

/// The status of the active viewport, from its background and its sun.
int readSkyStatus(const drawing::Database& database);
/// Gives the active viewport a sky, or takes it away, and sets whether its sun's sky gives light.
/// False without a viewport or for an object that is open elsewhere.
bool writeSkyStatus(drawing::Database& database, int status);
/// @}

/// The sun of the active viewport, or the drawing's first one if the viewport has none; null if
/// there is no sun at all.
drawing::ObjectId activeOrOnlySun(const drawing::Database& database);
/// Gives the active viewport a sun if it has none.
void ensureSun(drawing::Database& database);

}  // namespace workbench
