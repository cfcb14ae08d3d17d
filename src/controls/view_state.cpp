#include "controls/view_state.h"

#include "controls/current_view.h"
#include "controls/variable_access.h"
#include "core/host_objects.h"
#include "core/opened_object.h"

#include <hostapi/zorq/variables.h>
#include <hostapi/zorq/views.h>

namespace {

constexpr int kNoViewport = -1;

bool isShownViewPerspective() {
    const std::optional<int> viewport = currentViewportNumber();
    if (!viewport)
        return false;
    const CurrentView view(*viewport);
    return view.get() != nullptr && view.get()->isPerspective();
}

}  // namespace

std::optional<int> currentViewportNumber() {
    VxResultBuffer buffer;
    if (vxedGetVar(L"CVPORT", &buffer) != kRtNorm)
        return {};
    const int number = buffer.value.shortInt;
    if (number == kNoViewport)
        return {};
    return number;
}

bool IsPaperSpaceViewport() {
    const VxDbDatabase* database = workingDatabase();
    if (database == nullptr || database->tilemode())
        return false;
    const VxDbObjectId sheet = database->paperSpaceVportId();
    const VxDbObjectId current = vxedGetCurViewportObjectId();
    return sheet.isValid() && current.isValid() && sheet == current;
}

bool IsViewportLocked() {
    if (!currentViewportNumber())
        return true;
    if (IsPaperSpaceViewport())
        return false;
    // A tile of model space is no such object.
    const Opened<VxDbViewport> viewport(vxedGetCurViewportObjectId());
    return viewport.get() != nullptr && viewport.get()->isLocked();
}

bool IsPerspectiveView() {
    CTool* tool = nullptr;
    if (OrbitInProgress(tool))
        return isShownViewPerspective();
    return readVariableShort(L"PERSPECTIVE") == 1;
}
