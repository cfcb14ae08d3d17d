#include "workbench/adapters/host_values.h"
#include "workbench/drawing/preset_views.h"
#include "workbench/host/workbench.h"
#include "workbench/modules/module_start.h"
#include "workbench/navigation/navigation_tool.h"

#include <hostapi/export.h>
#include <hostapi/zorq/views.h>

/// The module of the navigation tools: what the running tool does, and the recording of animations.

namespace {

// What `navIsActive` answers.
constexpr int kIdle = 0;
constexpr int kPaused = 1;
constexpr int kRecording = 2;

workbench::NavigationTool& navigation() {
    return workbench::Workbench::current().navigation();
}

bool isRunning(const CTool* tool) {
    return tool != nullptr && tool == navigation().tool();
}

}  // namespace

VXDA_EXPORT int vxrxGetApiVersion() {
    return kVxRxApiVersion;
}

VXDA_EXPORT int vxrxEntryPoint(int message, void* appPacket) {
    return serviceModuleMessage(L"ZorqVmTools", message, appPacket);
}

/// Changes the mode of the running tool, or the projection of its view; another tool is left alone.
VXDA_EXPORT void navSwitchNavMode(CTool* tool, int mode) {
    if (isRunning(tool))
        navigation().switchMode(mode);
}

/// Gives the view of the running tool a lens in millimetres; another tool is left alone.
VXDA_EXPORT void navUpdateLensLength(CTool* tool, double lens) {
    if (isRunning(tool))
        navigation().setLens(lens);
}

/// Turns the view of the running tool to a preset by its number.
VXDA_EXPORT void navRestorePresetView(CTool* tool, int preset) {
    if (isRunning(tool) && preset >= 0 && preset < workbench::drawing::kPresetViewCount)
        navigation().restorePreset(static_cast<workbench::drawing::PresetView>(preset));
}

/// Gives the view of the running tool the parameters of a named view.
VXDA_EXPORT void navRestoreNamedView(CTool* tool, VxDbObjectId view) {
    if (isRunning(tool))
        navigation().restoreNamed(workbench::fromHostId(view));
}

/// Moves the camera of the running tool.
VXDA_EXPORT void navUpdateCameraPosition(CTool* tool, double x, double y, double z) {
    if (isRunning(tool))
        navigation().moveCamera({x, y, z});
}

/// Moves what the camera of the running tool looks at.
VXDA_EXPORT void navUpdateCameraTarget(CTool* tool, double x, double y, double z) {
    if (isRunning(tool))
        navigation().moveTarget({x, y, z});
}

/// Shows the settings of walking and flying.
VXDA_EXPORT void navShowWalkSetting() {
    navigation().showWalkSettings();
}

/// Plays what was recorded.
VXDA_EXPORT void navPlayAnimation() {
    navigation().playAnimation();
}

/// Starts recording, or goes on with it.
VXDA_EXPORT void navRecordAnimation() {
    navigation().recordAnimation();
}

/// Pauses the recording.
VXDA_EXPORT void navPauseRecording() {
    navigation().pauseRecording();
}

/// Asks where what was recorded is to be saved.
VXDA_EXPORT void navSaveAnimation() {
    navigation().saveAnimation();
}

/// Shows the settings of animations.
VXDA_EXPORT void navShowAnimationSetting() {
    navigation().showAnimationSettings();
}

/// How far the recording is: 1 paused, 2 under way, 0 neither.
VXDA_EXPORT int navIsActive() {
    switch (navigation().animation()) {
    case workbench::AnimationState::Paused:
        return kPaused;
    case workbench::AnimationState::Recording:
        return kRecording;
    case workbench::AnimationState::None:
    case workbench::AnimationState::Playing:
        break;
    }
    return kIdle;
}
