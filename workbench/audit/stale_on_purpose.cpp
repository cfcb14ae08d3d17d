#include "workbench/audit/stale_on_purpose.h"

#include "workbench/audit/shown_control.h"
#include "workbench/host/workbench.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <string_view>

namespace workbench {

namespace {

/// A field that may differ from the host's state for a while.
struct StaleEntry {
    std::string_view control;  // empty: any
    std::string_view field;    // empty: any
    bool (*holds)(const AuditFinding& finding, const HostState& host);
    const char* reason;
};

/// Whether one of the controls of the name answers yes.
template <bool (ShownControl::*Question)() const>
bool any(const AuditFinding& finding, const HostState& host) {
    const WindowSystem& windows = host.workbench().windows();
    for (int skip = 0;; ++skip) {
        const HWND control = windows.findByName(finding.control, skip);
        if (control == nullptr)
            return false;
        if ((ShownControl(windows, control).*Question)())
            return true;
    }
}

/// Whether a control of the name has shown no value yet.
bool isUnfilled(const AuditFinding& finding, const HostState& host) {
    const WindowSystem& windows = host.workbench().windows();
    const HWND control = windows.findByName(finding.control);
    return control != nullptr && ShownControl(windows, control).text("edit") == "";
}

bool isAnyRunning(const AuditFinding& /*finding*/, const HostState& host) {
    return host.isCommandRunning();
}

constexpr std::string_view kFade = "LayerLockTransparencySliderControl";
constexpr std::string_view kStates = "LayerStateComboControl";
constexpr std::string_view kLens = "3DNavZoomSliderControl";

bool always(const AuditFinding& /*finding*/, const HostState& /*host*/) {
    return true;
}

constexpr StaleEntry kEntries[] = {
    {"", "", any<&ShownControl::isInUse>, "what the user types or drags isn't an entry yet"},
    {kFade, "slider.enabled", isAnyRunning, "the end of a nested command counts as the end of all"},
    {kFade, "edit.enabled", isAnyRunning, "the end of a nested command counts as the end of all"},
    {kStates, "selected", always,
     "whether the layers are as a state says is asked at the ends of "
     "layer commands only"},
    {kLens, "", any<&ShownControl::hasFieldWithFocus>, "its fields don't change under the user"},
    {kLens, "", isUnfilled, "a new control waits for the first event with its values"},
    {kLens, "", isAnyRunning, "a command's changes of the view come with its end"},
};

}  // namespace

const char* reasonToBeStale(const AuditFinding& finding, const HostState& host) {
    for (const StaleEntry& entry : kEntries) {
        if ((entry.control.empty() || entry.control == finding.control) &&
            (entry.field.empty() || entry.field == finding.field) && entry.holds(finding, host))
            return entry.reason;
    }
    return nullptr;
}

}  // namespace workbench
