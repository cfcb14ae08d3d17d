#include "workbench/adapters/host_values.h"
#include "workbench/core/host_call.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"

#include <hostapi/vxdb18/database.h>
#include <hostapi/vxdb18/entity.h>

namespace {

using namespace workbench;

Document* documentOf(VxDbObjectId id) {
    return Workbench::current().editor().documents().findBySerial(fromHostId(id).database());
}

Zorq::ErrorStatus openObject(VxDbObject*& object, VxDbObjectId id, VxDbOpenMode mode) {
    if (id.isNull())
        return toHostStatus(drawing::Status::NullObjectId);
    Document* document = documentOf(id);
    if (document == nullptr)
        return toHostStatus(drawing::Status::UnknownId);
    return toHostStatus(document->openObjects().open(fromHostId(id), openModeOf(mode), object));
}

/// Whether the ID is that of an object of another kind.
bool isOtherKind(VxDbObjectId id, drawing::RecordKind kind) {
    const Document* document = documentOf(id);
    const drawing::DbObject* object =
        document == nullptr ? nullptr : document->data().peek(fromHostId(id));
    return object != nullptr && object->kind() != kind;
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
    return call.returns(openObject(object, id, mode));
}

Zorq::ErrorStatus vxdbOpenVxDbEntity(VxDbEntity*& entity, VxDbObjectId id, VxDbOpenMode mode) {
    HostCall call("vxdbOpenVxDbEntity", {id.number, static_cast<int>(mode)});
    entity = nullptr;
    if (call.failed())
        return call.returns(call.status(toHostStatus(drawing::Status::UnknownId)));
    // Looked at first: opening alone would be seen by those who watch the object.
    if (isOtherKind(id, drawing::RecordKind::Entity))
        return call.returns(toHostStatus(drawing::Status::WrongKind));
    VxDbObject* object = nullptr;
    const Zorq::ErrorStatus status = openObject(object, id, mode);
    entity = static_cast<VxDbEntity*>(object);
    return call.returns(status);
}
