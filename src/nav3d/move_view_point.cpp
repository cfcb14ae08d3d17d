#include "nav3d/move_view_point.h"

#include "controls/current_view.h"
#include "controls/view_state.h"

#include <hostapi/zorq/views.h>

namespace {

CameraPoints moved(const CameraPoints& camera, const VxGePoint3d& point, bool isEye) {
    return isEye ? CameraPoints{point, camera.target} : CameraPoints{camera.eye, point};
}

}  // namespace

VxGeVector3d upVectorOf(const CameraPoints& camera) {
    const VxGeVector3d direction = camera.eye - camera.target;
    const VxGeVector3d side = direction.perpVector().normalize();
    return direction.crossProduct(side).normalize();
}

void MoveViewPoint(const VxGePoint3d& point, bool isEye) {
    const std::optional<int> viewport = currentViewportNumber();
    if (!viewport || IsViewportLocked())
        return;
    const CurrentView view(*viewport);
    if (view.get() == nullptr)
        return;
    const CameraPoints before{view.get()->eyePosition(), view.get()->target()};
    const CameraPoints after = moved(before, point, isEye);
    const double distanceBefore = (before.eye - before.target).length();
    if (after.eye.isEqualTo(after.target) || distanceBefore == 0.0)
        return;
    vxgsWriteViewToUndoController(*viewport);
    const double ratio = (after.eye - after.target).length() / distanceBefore;
    view.get()->setView(after.eye, after.target, upVectorOf(after),
                        view.get()->fieldWidth() * ratio, view.get()->fieldHeight() * ratio,
                        view.get()->isPerspective());
    vxgsSetViewParameters(*viewport, view.get(), true, false, false);
}
