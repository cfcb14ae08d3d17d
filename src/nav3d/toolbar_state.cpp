#include "nav3d/toolbar_state.h"

#include "controls/view_state.h"
#include "core/host_objects.h"
#include "core/resources.h"
#include "core/roof.h"
#include "nav3d/navigation_module.h"
#include "palette/tool_items.h"

#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/vxdb18/database.h>
#include <hostapi/zorq/views.h>

#include <optional>

namespace {

constexpr const wchar_t* kPlay = L"ID_Animation_Play";
constexpr const wchar_t* kRecord = L"ID_Animation_Record";
constexpr const wchar_t* kPause = L"ID_Animation_Pause";
constexpr const wchar_t* kSave = L"ID_Animation_Save";

constexpr UINT kStrContinueRecording = 1248;
constexpr UINT kStrRecord = 1249;

/// What the animation recorder of the navigation tool lets the user press.
struct AnimationRow {
    bool play;
    bool record;
    bool pause;
    bool save;
    std::optional<UINT> recordName;  // nothing: the name stays
};
constexpr AnimationRow kNoTool{false, false, false, false, {}};
constexpr AnimationRow kPaused{true, true, false, true, kStrContinueRecording};
constexpr AnimationRow kRecording{true, false, true, true, kStrRecord};
constexpr AnimationRow kIdle{false, true, false, false, kStrRecord};

constexpr int kStatePaused = 1;
constexpr int kStateRecording = 2;
constexpr int kStateUnknown = 0;

int askNavigationState() {
    HINSTANCE module = findNavigationModule();
    if (module == nullptr)
        return kStateUnknown;
    auto* isActive = findNavigationExport<int (*)()>(module, "navIsActive");
    return isActive == nullptr ? kStateUnknown : isActive();
}

void enable(const wchar_t* id, bool enabled) {
    SetItemFlag(id, !enabled, kItemDisabled);
}

void showAnimation(const AnimationRow& row) {
    enable(kPlay, row.play);
    enable(kRecord, row.record);
    if (row.recordName)
        setItemName(kRecord, loadDashboardString(*row.recordName));
    enable(kPause, row.pause);
    enable(kSave, row.save);
}

void UpdateAnimationButtons() {
    CTool* tool = nullptr;
    if (!OrbitInProgress(tool)) {
        showAnimation(kNoTool);
        return;
    }
    switch (askNavigationState()) {
    case kStatePaused:
        showAnimation(kPaused);
        break;
    case kStateRecording:
        // Kept as it is: asked twice, because the recorder may end between the two.
        if (askNavigationState() == kStateRecording)
            showAnimation(kRecording);
        break;
    default:
        showAnimation(kIdle);
    }
}

void updateCameraButton() {
    constexpr const wchar_t* kCamera = L"ID_Camera";
    const bool onSheet = IsPaperSpaceViewport();
    // The mark is only taken off here; the host alone sets it.
    if (onSheet)
        SetItemFlag(kCamera, false, kItemChecked);
    enable(kCamera, !onSheet);
}

void UpdateProjectionToggles() {
    const bool perspective = IsPerspectiveView();
    SetItemFlag(L"ID_Perspective_Projection", perspective, kItemChecked);
    SetItemFlag(L"ID_Parallel_Projection", !perspective, kItemChecked);
}

}  // namespace

void UpdateToolbarState() {
    if (!isDashboardVisible())
        return;
    UpdateAnimationButtons();
    updateCameraButton();
    if (const VxDbDatabase* database = workingDatabase())
        SetItemFlag(L"ID_CAMERAS_OnOf", database->cameraDisplay(), kItemChecked);
    UpdateProjectionToggles();
}
