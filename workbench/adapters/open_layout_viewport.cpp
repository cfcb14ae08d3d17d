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

Zorq::ErrorStatus OpenLayoutViewport::freezeLayersInViewport(const VxDbObjectIdArray& layers) {
    HostCall call("VxDbViewport::freezeLayersInViewport", {layers.size()});
    return call.returns(call.failed() ? call.status(toHostStatus(drawing::Status::UnknownId))
                                      : toHostStatus(changeFreezing(layers, true)));
}

Zorq::ErrorStatus OpenLayoutViewport::thawLayersInViewport(const VxDbObjectIdArray& layers) {
    HostCall call("VxDbViewport::thawLayersInViewport", {layers.size()});
    return call.returns(call.failed() ? call.status(toHostStatus(drawing::Status::UnknownId))
                                      : toHostStatus(changeFreezing(layers, false)));
}

drawing::Status OpenLayoutViewport::changeFreezing(const VxDbObjectIdArray& layers, bool frozen) {
    for (const VxDbObjectId layer : layers) {
        const drawing::Status status = statusFor(layer);
        if (status != drawing::Status::Ok)
            return status;
        drawing::freezeInViewport(edit(), fromHostId(layer), frozen);
    }
    return drawing::Status::Ok;
}

drawing::Status OpenLayoutViewport::statusFor(VxDbObjectId layer) const {
    if (!isWritable())
        return drawing::Status::NotOpenForWrite;
    const drawing::DbObject* object = owner().database().peek(fromHostId(layer));
    if (object == nullptr)
        return layer.isNull() ? drawing::Status::NullObjectId : drawing::Status::UnknownId;
    if (object->kind() != drawing::RecordKind::Layer)
        return drawing::Status::WrongKind;
    return object->isErased() ? drawing::Status::WasErased : drawing::Status::Ok;
}

}  // namespace workbench
