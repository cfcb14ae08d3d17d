#include "workbench/adapters/open_layer_table.h"

#include "workbench/adapters/layer_table_walk.h"
#include "workbench/drawing/records/layer.h"

namespace workbench {

Zorq::ErrorStatus OpenLayerTable::newIterator(VxDbLayerTableIterator*& iterator, bool atStart,
                                              bool skipErased) const {
    HostCall call("VxDbLayerTable::newIterator", {atStart, skipErased});
    return handOutWalk<LayerTableWalk>(call, owner(), iterator, atStart, skipErased);
}

bool OpenLayerTable::hasUnreconciledLayers() const {
    HostCall call("VxDbLayerTable::hasUnreconciledLayers");
    const auto isNew = [](const drawing::Layer& layer) { return !layer.reconciled; };
    return call.returns(!call.failed() &&
                        !owner().database().firstWhere<drawing::Layer>(isNew).isNull());
}

}  // namespace workbench
