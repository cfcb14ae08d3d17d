#include "workbench/adapters/open_view_table.h"

#include "workbench/adapters/view_table_walk.h"

namespace workbench {

Zorq::ErrorStatus OpenViewTable::newIterator(VxDbViewTableIterator*& iterator, bool atStart,
                                             bool skipErased) const {
    HostCall call("VxDbViewTable::newIterator", {atStart, skipErased});
    iterator = nullptr;
    if (call.failed())
        return call.returns(call.status(toHostStatus(drawing::Status::UnknownId)));
    iterator = new ViewTableWalk(owner(), atStart);
    return call.returns(Zorq::eOk);
}

}  // namespace workbench
