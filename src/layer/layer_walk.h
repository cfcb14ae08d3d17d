#pragma once

#include <hostapi/vxdb18/layer.h>

#include <memory>

/// A walk over all layers of an open table but the erased ones, at its beginning; null if the host
/// refuses it.
std::unique_ptr<VxDbLayerTableIterator> walkLayers(const VxDbLayerTable& table);

/// The IDs of all layers of the working database, in the host's order; none without one.
VxDbObjectIdArray collectLayerIds();
