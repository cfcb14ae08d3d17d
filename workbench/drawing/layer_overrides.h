#pragma once

#include "workbench/drawing/database/database.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/drawing/records/viewport.h"

namespace workbench::drawing {

/// Whether a layer looks other than it is in a viewport. What is overridden of layers that are gone
/// doesn't count.
bool hasOverride(const Viewport& viewport, ObjectId layer);
/// Whether any living layer does in the active viewport.
bool activeViewportHasOverrides(const Database& database);
/// The layer as it looks in a viewport.
Layer lookIn(const Viewport& viewport, ObjectId id, Layer layer);
/// Has a layer look in a viewport as `wanted` does; what the layer has itself needs no override.
void overrideLook(Viewport& viewport, ObjectId id, const Layer& own, const Layer& wanted);

}  // namespace workbench::drawing
