#include "workbench/adapters/open_layout_viewport.h"

namespace workbench {

bool OpenLayoutViewport::isLocked() const {
    HostCall call("VxDbViewport::isLocked");
    return call.returns(!call.failed() && data().locked);
}

VxDbObjectId OpenLayoutViewport::background() const {
    HostCall call("VxDbViewport::background");
    return toHostId(data().background);
}

VxDbObjectId OpenLayoutViewport::sunId() const {
    HostCall call("VxDbViewport::sunId");
    return toHostId(data().sun);
}

}  // namespace workbench
