#include "workbench/adapters/open_layer.h"

#include "workbench/drawing/lookup.h"

namespace workbench {

namespace {

/// The status for the freezing of the layer that the user works on.
constexpr Zorq::ErrorStatus kInvalidLayer = 22;

}  // namespace

bool OpenLayer::isOff() const {
    HostCall call("VxDbLayerTableRecord::isOff");
    return call.returns(!call.failed() && !data().on);
}

void OpenLayer::setIsOff(bool off) {
    HostCall call("VxDbLayerTableRecord::setIsOff", {off});
    if (!call.failed() && isWritable())
        edit().on = !off;
}

bool OpenLayer::isFrozen() const {
    HostCall call("VxDbLayerTableRecord::isFrozen");
    return call.returns(!call.failed() && data().frozen);
}

Zorq::ErrorStatus OpenLayer::setIsFrozen(bool frozen) {
    HostCall call("VxDbLayerTableRecord::setIsFrozen", {frozen});
    if (call.failed())
        return call.returns(call.status(kInvalidLayer));
    if (!isWritable())
        return call.returns(toHostStatus(drawing::Status::NotOpenForWrite));
    if (frozen && isCurrent())
        return call.returns(kInvalidLayer);
    edit().frozen = frozen;
    return call.returns(Zorq::eOk);
}

bool OpenLayer::isLocked() const {
    HostCall call("VxDbLayerTableRecord::isLocked");
    return call.returns(!call.failed() && data().locked);
}

void OpenLayer::setIsLocked(bool locked) {
    HostCall call("VxDbLayerTableRecord::setIsLocked", {locked});
    if (!call.failed() && isWritable())
        edit().locked = locked;
}

bool OpenLayer::isShownBy(const drawing::LayerFilter& filter) const {
    return drawing::filterShows(filter, id(), owner().database());
}

bool OpenLayer::isCurrent() const {
    return id() == drawing::currentLayer(owner().database());
}

}  // namespace workbench
