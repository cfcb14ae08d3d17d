#include "workbench/adapters/view_table_walk.h"

#include "workbench/adapters/host_values.h"
#include "workbench/core/host_call.h"

#include <algorithm>

namespace workbench {

ViewTableWalk::ViewTableWalk(OpenObjects& objects, bool atStart)
    : m_objects(objects),
      m_ids(objects.database().ids(drawing::RecordKind::View)) {
    if (!atStart)
        std::reverse(m_ids.begin(), m_ids.end());
}

Zorq::ErrorStatus ViewTableWalk::getRecordId(VxDbObjectId& id) const {
    HostCall call("VxDbViewTableIterator::getRecordId");
    if (call.failed() || done())
        return call.returns(call.status(toHostStatus(drawing::Status::UnknownId)));
    id = toHostId(m_ids[m_place]);
    return call.returns(Zorq::eOk);
}

Zorq::ErrorStatus ViewTableWalk::getRecord(VxDbViewTableRecord*& record, VxDbOpenMode mode) const {
    HostCall call("VxDbViewTableIterator::getRecord", {static_cast<int>(mode)});
    record = nullptr;
    if (call.failed() || done())
        return call.returns(call.status(toHostStatus(drawing::Status::UnknownId)));
    VxDbObject* object = nullptr;
    const drawing::Status status = m_objects.open(m_ids[m_place], openModeOf(mode), object);
    record = static_cast<VxDbViewTableRecord*>(object);
    return call.returns(toHostStatus(status));
}

}  // namespace workbench
