#pragma once

#include "workbench/drawing/database/database.h"
#include "workbench/drawing/records/layer_filters.h"

namespace workbench::drawing {

/// True if the filter shows the layer: where it is nested makes no difference. A property filter whose expression can't be read shows
/// none.
bool filterShows(const LayerFilter& filter, ObjectId layer, const Database& database);

}  // namespace workbench::drawing
