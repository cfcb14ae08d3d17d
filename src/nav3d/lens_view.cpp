#include "nav3d/lens_view.h"

#include "controls/current_view.h"
#include "controls/view_state.h"
#include "nav3d/lens_mapping.h"
#include "nav3d/navigation_module.h"

#include <hostapi/zorq/views.h>

namespace {

void widenView(VxGsView& view, double lens) {
    const VxGePoint3d eye = view.eyePosition();
    const VxGePoint3d target = view.target();
    const double aspect = view.fieldWidth() / view.fieldHeight();
    const ViewField field = viewFieldOf((eye - target).length(), aspect, lens);
    view.setView(eye, target, view.upVector(), field.width, field.height, view.isPerspective());
}

/// False if no view could be had.
bool setLensOfViewport(int viewport, double lens) {
    const CurrentView view(viewport);
    if (view.get() == nullptr)
        return false;
    vxgsSetLensLength(viewport, lens);
    widenView(*view.get(), lens);
    vxgsSetViewParameters(viewport, view.get(), true, false, false);
    view.get()->update();
    return true;
}

/// False if the navigation tools can't be reached.
bool setLensOfTool(CTool* tool, double lens) {
    HINSTANCE module = findNavigationModule();
    if (module == nullptr)
        return false;
    if (auto* update =
            findNavigationExport<void (*)(CTool*, double)>(module, "navUpdateLensLength"))
        update(tool, lens);
    return true;
}

}  // namespace

std::optional<double> readLens() {
    const std::optional<int> viewport = currentViewportNumber();
    double lens = kDefaultLens;
    if (!viewport || vxgsGetLensLength(*viewport, lens) == 0)
        return {};
    return lens;
}

void ApplyLens(double lens) {
    const std::optional<int> viewport = currentViewportNumber();
    if (!viewport)
        return;
    // Each step of a drag is recorded, so that undo goes back through what the user saw.
    vxgsWriteViewToUndoController(*viewport);
    CTool* tool = nullptr;
    const bool applied =
        OrbitInProgress(tool) ? setLensOfTool(tool, lens) : setLensOfViewport(*viewport, lens);
    if (!applied)
        return;
    vxedSendViewChanged();
    VxViewMgrDlg::viewComboClear();
}
