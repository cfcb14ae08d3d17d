#include "workbench/adapters/host_values.h"
#include "workbench/drawing/preset_views.h"
#include "workbench/host/workbench.h"
#include "workbench/modules/module_start.h"
#include "workbench/navigation/navigation_tool.h"

#include <hostapi/export.h>
#include <hostapi/zorq/views.h>

#include <cstdint>

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
    navigation().noteFunction("navSwitchNavMode", {mode});
    if (isRunning(tool))
        navigation().switchMode(mode);
}

/// Gives the view of the running tool a lens in millimetres; another tool is left alone.
VXDA_EXPORT void navUpdateLensLength(CTool* tool, double lens) {
    navigation().noteFunction("navUpdateLensLength", {lens});
    if (isRunning(tool))
        navigation().setLens(lens);
}

/// Turns the view of the running tool to a preset by its number.
VXDA_EXPORT void navRestorePresetView(CTool* tool, int preset) {
    navigation().noteFunction("navRestorePresetView", {preset});
    if (isRunning(tool) && preset >= 0 && preset < workbench::drawing::kPresetViewCount)
        navigation().restorePreset(static_cast<workbench::drawing::PresetView>(preset));
}

/// Gives the view of the running tool the parameters of a named view.
VXDA_EXPORT void navRestoreNamedView(CTool* tool, VxDbObjectId view) {
    navigation().noteFunction("navRestoreNamedView", {static_cast<std::int64_t>(view.number)});
    if (isRunning(tool))
        navigation().restoreNamed(workbench::fromHostId(view));
}

/// Moves the camera of the running tool.
VXDA_EXPORT void navUpdateCameraPosition(CTool* tool, double x, double y, double z) {
    navigation().noteFunction("navUpdateCameraPosition", {x, y, z});
    if (isRunning(tool))
        navigation().moveCamera({x, y, z});
}

/// Moves what the camera of the running tool looks at.
VXDA_EXPORT void navUpdateCameraTarget(CTool* tool, double x, double y, double z) {
    navigation().noteFunction("navUpdateCameraTarget", {x, y, z});
    if (isRunning(tool))
        navigation().moveTarget({x, y, z});
}

/// Shows the settings of walking and flying.
VXDA_EXPORT void navShowWalkSetting() {
    navigation().noteFunction("navShowWalkSetting");
    navigation().showWalkSettings();
}

/// Plays what was recorded.
VXDA_EXPORT void navPlayAnimation() {
    navigation().noteFunction("navPlayAnimation");
    navigation().playAnimation();
}

/// Starts recording, or goes on with it.
VXDA_EXPORT void navRecordAnimation() {
    navigation().noteFunction("navRecordAnimation");
    navigation().recordAnimation();
}

/// Pauses the recording.
VXDA_EXPORT void navPauseRecording() {
    navigation().noteFunction("navPauseRecording");
    navigation().pauseRecording();
}

/// Asks where what was recorded is to be saved.
VXDA_EXPORT void navSaveAnimation() {
    navigation().noteFunction("navSaveAnimation");
    navigation().saveAnimation();
}

/// Shows the settings of animations.
VXDA_EXPORT void navShowAnimationSetting() {
    navigation().noteFunction("navShowAnimationSetting");
    navigation().showAnimationSettings();
}

/// How far the recording is: 1 paused, 2 under way, 0 neither.
VXDA_EXPORT int navIsActive() {
    navigation().noteFunction("navIsActive");
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
