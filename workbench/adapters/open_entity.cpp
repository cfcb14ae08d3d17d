#include "workbench/adapters/open_entity.h"

namespace workbench {

VxDbObjectId OpenEntity::layerId() const {
    HostCall call("VxDbEntity::layerId");
    const VxDbObjectId layer = call.failed() ? VxDbObjectId() : toHostId(data().layer);
    call.returns(layer.number);
    return layer;
}

}  // namespace workbench
