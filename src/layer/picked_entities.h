#pragma once

#include <hostapi/vxdb18/database.h>

#include <optional>

/// Lets the user pick entities in the drawing. Those that have no ID are left out; nothing if the user
/// picked none.
std::optional<VxDbObjectIdArray> pickEntities();
