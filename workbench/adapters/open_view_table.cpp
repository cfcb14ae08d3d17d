#include "workbench/adapters/open_view_table.h"

#include "workbench/adapters/view_table_walk.h"

namespace workbench {

Zorq::ErrorStatus OpenViewTable::newIterator(VxDbViewTableIterator*& iterator, bool atStart,
                                             bool skipErased) const {
    HostCall call("VxDbViewTable::newIterator", {atStart, skipErased});
    return handOutWalk<ViewTableWalk>(call, owner(), iterator, atStart, skipErased);
}

}  // namespace workbench
