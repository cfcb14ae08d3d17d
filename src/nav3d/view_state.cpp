#include "nav3d/view_state.h"

#include "controls/variable_access.h"

#include <hostapi/zorq/variables.h>
#include <hostapi/zorq/views.h>

#include <optional>

namespace {

constexpr int kNoViewport = -1;

/// Number of the current viewport; nothing if it can't be read.
std::optional<int> readViewportNumber() {
    VxResultBuffer buffer;
    if (vxedGetVar(L"CVPORT", &buffer) != kRtNorm)
        return {};
    const int number = buffer.value.shortInt;
    if (number == kNoViewport)
        return {};
    return number;
}

bool isTemporaryViewPerspective(int viewportNumber) {
    VxGsManager* graphics = vxgsGetGsManager(nullptr);
    if (graphics == nullptr)
        return false;
    VxGsClassFactory* factory = graphics->classFactory();
    if (factory == nullptr)
        return false;
    VxGsView* view = factory->createView({viewportNumber, vxedGetCurViewportObjectId()});
    if (view == nullptr)
        return false;
    vxgsGetViewParameters(viewportNumber, view);
    const bool perspective = view->isPerspective();
    factory->deleteView(view);
    return perspective;
}

bool isShownViewPerspective() {
    const std::optional<int> number = readViewportNumber();
    if (!number)
        return false;
    // A live view belongs to the host and is never destroyed here.
    if (const VxGsView* live = vxgsGetGsView(*number, false))
        return live->isPerspective();
    return isTemporaryViewPerspective(*number);
}

}  // namespace

bool IsPerspectiveView() {
    CTool* tool = nullptr;
    if (OrbitInProgress(tool))
        return isShownViewPerspective();
    return readVariableShort(L"PERSPECTIVE") == 1;
}
