#include "workbench/adapters/view_table_walk.h"

namespace workbench {

Zorq::ErrorStatus ViewTableWalk::getRecord(VxDbViewTableRecord*& record, VxDbOpenMode mode) const {
    HostCall call("VxDbViewTableIterator::getRecord", {static_cast<int>(mode)});
    record = nullptr;
    if (call.failed() || done())
        return call.returns(call.status(toHostStatus(drawing::Status::UnknownId)));
    VxDbObject* object = nullptr;
    const drawing::Status status = objects().open(here(), openModeOf(mode), object);
    record = static_cast<VxDbViewTableRecord*>(object);
    return call.returns(toHostStatus(status));
}

}  // namespace workbench
