#include "workbench/adapters/host_values.h"
#include "workbench/core/host_call.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"

#include <hostapi/vxdb18/database.h>

namespace {

using namespace workbench;

Document* documentOf(VxDbObjectId id) {
    return Workbench::current().editor().documents().findBySerial(fromHostId(id).database());
}

}  // namespace

bool VxDbObjectId::isValid() const {
    if (isNull())
        return false;
    const Document* document = documentOf(*this);
    return document != nullptr && document->data().peek(fromHostId(*this)) != nullptr;
}

Zorq::ErrorStatus vxdbOpenObject(VxDbObject*& object, VxDbObjectId id, VxDbOpenMode mode) {
    HostCall call("vxdbOpenObject", {id.number, static_cast<int>(mode)});
    object = nullptr;
    if (call.failed())
        return call.returns(call.status(toHostStatus(drawing::Status::UnknownId)));
    if (id.isNull())
        return call.returns(toHostStatus(drawing::Status::NullObjectId));
    Document* document = documentOf(id);
    if (document == nullptr)
        return call.returns(toHostStatus(drawing::Status::UnknownId));
    return call.returns(
        toHostStatus(document->openObjects().open(fromHostId(id), openModeOf(mode), object)));
}
