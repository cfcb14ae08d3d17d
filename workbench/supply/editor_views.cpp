#include "workbench/core/host_call.h"
#include "workbench/core/workbench.h"
#include "workbench/drawing/lookup.h"
#include "workbench/editor/editor.h"
#include "workbench/navigation/navigation_tool.h"

#include <hostapi/zorq/views.h>

namespace {

using workbench::HostCall;
using workbench::Workbench;

/// The viewport in which the user works; null for none.
VxDbObjectId activeViewport() {
    const workbench::Document* document = Workbench::current().editor().documents().current();
    return document == nullptr
               ? VxDbObjectId()
               : workbench::toHostId(workbench::drawing::activeViewport(document->data()));
}

}  // namespace

bool OrbitInProgress(CTool*& tool) {
    HostCall call("OrbitInProgress");
    tool = nullptr;
    // Told to fail with a status other than 0, a tool runs that can't be had.
    if (call.failed())
        return call.returns(call.status(0) != 0);
    tool = Workbench::current().navigation().tool();
    return call.returns(tool != nullptr);
}

VxDbObjectId vxedActiveViewportId() {
    HostCall call("vxedActiveViewportId");
    const VxDbObjectId id = call.failed() ? VxDbObjectId() : activeViewport();
    call.returns(id.number);
    return id;
}

VxDbObjectId vxedGetCurViewportObjectId() {
    HostCall call("vxedGetCurViewportObjectId");
    const VxDbObjectId id = call.failed() ? VxDbObjectId() : activeViewport();
    call.returns(id.number);
    return id;
}

VxGsManager* vxgsGetGsManager(CWnd* viewWindow) {
    HostCall call("vxgsGetGsManager", {static_cast<const void*>(viewWindow)});
    VxGsManager* manager = call.failed() ? nullptr : &Workbench::current().navigation().graphics();
    return call.returns(manager);
}

VxGsView* vxgsGetGsView(int viewportNumber, bool create) {
    HostCall call("vxgsGetGsView", {viewportNumber, create});
    VxGsView* view = call.failed() ? nullptr
                                   : Workbench::current().navigation().graphics().liveView(
                                         viewportNumber, create);
    return call.returns(view);
}

BOOL vxgsGetViewParameters(int viewportNumber, VxGsView* view) {
    HostCall call("vxgsGetViewParameters", {viewportNumber, view});
    const bool copied =
        !call.failed() &&
        Workbench::current().navigation().graphics().copyParameters(viewportNumber, view);
    return call.returns(copied ? 1 : 0);
}
