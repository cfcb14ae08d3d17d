#include "workbench/audit/tool_rules.h"

#include "workbench/host/workbench.h"
#include "workbench/navigation/navigation_tool.h"

namespace workbench {

namespace {

bool isPerspective(const HostState& host) {
    const drawing::ViewParameters* const view = host.view();
    return view != nullptr && view->perspective;
}

void comparePerspective(const ItemView& tool, const HostState& host, AuditReport& report) {
    report.compareFlag("checked", tool.checked, isPerspective(host));
}

void compareParallel(const ItemView& tool, const HostState& host, AuditReport& report) {
    report.compareFlag("checked", tool.checked, !isPerspective(host));
}

void compareCamera(const ItemView& tool, const HostState& host, AuditReport& report) {
    report.compareFlag("disabled", tool.disabled, host.isOnSheet());
}

void compareCameras(const ItemView& tool, const HostState& host, AuditReport& report) {
    report.compareFlag("checked", tool.checked, host.whole(L"CAMERADISPLAY") != 0);
}

/// Whether the buttons of the animation recorder can be pressed, in the states of the recorder.
template <bool WhenIdle, bool WhenRecording, bool WhenPaused>
void compareRecorder(const ItemView& tool, const HostState& host, AuditReport& report) {
    const NavigationTool& navigation = host.workbench().navigation();
    bool enabled = false;
    if (navigation.isRunning()) {
        switch (navigation.animation()) {
        case AnimationState::Recording:
            enabled = WhenRecording;
            break;
        case AnimationState::Paused:
            enabled = WhenPaused;
            break;
        default:
            enabled = WhenIdle;
        }
    }
    report.compareFlag("disabled", tool.disabled, !enabled);
}

}  // namespace

const std::vector<ToolRule>& toolRules() {
    static const std::vector<ToolRule> rules{
        {L"ID_Perspective_Projection", comparePerspective},
        {L"ID_Parallel_Projection", compareParallel},
        {L"ID_Camera", compareCamera},
        {L"ID_CAMERAS_OnOf", compareCameras},
        {L"ID_Animation_Play", compareRecorder<false, true, true>},
        {L"ID_Animation_Record", compareRecorder<true, false, true>},
        {L"ID_Animation_Pause", compareRecorder<false, true, false>},
        {L"ID_Animation_Save", compareRecorder<false, true, true>},
    };
    return rules;
}

}  // namespace workbench
