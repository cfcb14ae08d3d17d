#include "workbench/adapters/host_values.h"
#include "workbench/core/host_call.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"
#include "workbench/navigation/navigation_tool.h"

#include <hostapi/zorq/views.h>

namespace {

using workbench::HostCall;
using workbench::Workbench;

workbench::Document* currentDocument() {
    return Workbench::current().editor().documents().current();
}

workbench::GraphicsSystem& graphics() {
    return Workbench::current().navigation().graphics();
}

/// Steps the active viewport back; nothing in a drawing that isn't locked for writing.
void stepBack(bool (workbench::ViewHistory::*step)(workbench::drawing::ObjectId)) {
    workbench::Document* const document = currentDocument();
    if (document != nullptr && document->locks().isForWriting())
        (document->viewHistory().*step)(workbench::drawing::activeViewport(document->data()));
}

bool canStepBack() {
    workbench::Document* const document = currentDocument();
    if (document == nullptr)
        return false;
    const auto viewport = workbench::drawing::activeViewport(document->data());
    const auto* const shown = document->data().look<workbench::drawing::Viewport>(viewport);
    return shown != nullptr && !shown->locked && document->viewHistory().depth(viewport) > 0;
}

/// The viewport in which the user works; null for none.
VxDbObjectId activeViewport() {
    const workbench::Document* document = currentDocument();
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
    VxGsManager* manager = call.failed() ? nullptr : &graphics();
    return call.returns(manager);
}

VxGsView* vxgsGetGsView(int viewportNumber, bool create) {
    HostCall call("vxgsGetGsView", {viewportNumber, create});
    VxGsView* view = call.failed() ? nullptr : graphics().liveView(viewportNumber, create);
    return call.returns(view);
}

BOOL vxgsGetViewParameters(int viewportNumber, VxGsView* view) {
    HostCall call("vxgsGetViewParameters", {viewportNumber, view});
    const bool copied = !call.failed() && graphics().copyParameters(viewportNumber, view);
    return call.returns(copied ? 1 : 0);
}

BOOL vxgsSetViewParameters(int viewportNumber, VxGsView* view, bool regenerate, bool rescale,
                           bool sync) {
    HostCall call("vxgsSetViewParameters", {viewportNumber, view, regenerate, rescale, sync});
    const bool applied = !call.failed() && graphics().applyParameters(viewportNumber, view);
    return call.returns(applied ? 1 : 0);
}

BOOL vxgsGetLensLength(int viewportNumber, double& lens) {
    HostCall call("vxgsGetLensLength", {viewportNumber});
    const std::optional<double> found =
        call.failed() ? std::nullopt : graphics().lens(viewportNumber);
    if (found)
        lens = *found;
    return call.returns(found ? 1 : 0);
}

BOOL vxgsSetLensLength(int viewportNumber, double lens) {
    HostCall call("vxgsSetLensLength", {viewportNumber, lens});
    const bool set = !call.failed() && graphics().setLens(viewportNumber, lens);
    return call.returns(set ? 1 : 0);
}

void vxgsWriteViewToUndoController(int viewportNumber) {
    HostCall call("vxgsWriteViewToUndoController", {viewportNumber});
    if (!call.failed())
        graphics().beginUndoStep(viewportNumber);
}

void vxedSendViewChanged() {
    HostCall call("vxedSendViewChanged");
    if (!call.failed())
        Workbench::current().editor().viewChanged();
}

void VxViewMgrDlg::viewComboClear() {
    HostCall call("VxViewMgrDlg::viewComboClear");
    workbench::Document* document = currentDocument();
    if (call.failed() || document == nullptr)
        return;
    workbench::drawing::Database& database = document->data();
    const auto viewport = workbench::drawing::activeViewport(database);
    const auto* shown = database.look<workbench::drawing::Viewport>(viewport);
    if (shown == nullptr || shown->appliedView.id.isNull())
        return;
    workbench::drawing::Writing<workbench::drawing::Viewport> writing(database, viewport);
    if (writing)
        writing->appliedView = {};
}

VxDbObjectId vxInternalGetCurVPAppliedView() {
    HostCall call("vxInternalGetCurVPAppliedView");
    const workbench::Document* document = currentDocument();
    VxDbObjectId id;
    if (!call.failed() && document != nullptr) {
        const auto* shown = document->data().look<workbench::drawing::Viewport>(
            workbench::drawing::activeViewport(document->data()));
        if (shown != nullptr)
            id = workbench::toHostId(shown->appliedView.id);
    }
    call.returns(id.number);
    return id;
}

bool vxInternalIsCurVPZoomUndoAvailable() {
    HostCall call("vxInternalIsCurVPZoomUndoAvailable");
    return call.returns(!call.failed() && canStepBack());
}

void vxInternalZoomPrevious() {
    HostCall call("vxInternalZoomPrevious");
    if (!call.failed())
        stepBack(&workbench::ViewHistory::stepBack);
}

void vxInternalZoomBack() {
    HostCall call("vxInternalZoomBack");
    if (!call.failed())
        stepBack(&workbench::ViewHistory::stepBackByZoom);
}
