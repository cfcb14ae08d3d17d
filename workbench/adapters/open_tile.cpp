#include "workbench/adapters/open_tile.h"

namespace workbench {

VxDbObjectId OpenTile::background() const {
    HostCall call("VxDbViewportTableRecord::background");
    return toHostId(data().background);
}

VxDbObjectId OpenTile::sunId() const {
    HostCall call("VxDbViewportTableRecord::sunId");
    return toHostId(data().sun);
}

}  // namespace workbench
