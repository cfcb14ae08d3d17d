#include "workbench/adapters/layer_table_walk.h"

#include "workbench/drawing/records/layer.h"

namespace workbench {

void LayerTableWalk::setSkipReconciled(bool skip) {
    HostCall call("VxDbLayerTableIterator::setSkipReconciled", {skip});
    if (!call.failed())
        m_skipReconciled = skip;
}

bool LayerTableWalk::leavesOut(const drawing::DbObject& record) const {
    return m_skipReconciled &&
           static_cast<const drawing::Record<drawing::Layer>&>(record).data().reconciled;
}

}  // namespace workbench
