#include "workbench/main/gesture_road.h"

#include "workbench/core/step_text.h"
#include "workbench/gestures/slider_gestures.h"
#include "workbench/startup/open_dashboard.h"
#include "workbench/windows/window_parts.h"
#include "workbench/windows/window_system.h"
#include "workbench/windows/window_tree_text.h"

#include <ostream>

namespace workbench {

namespace {

constexpr const char* kControl = "LayerLockTransparencySliderControl";
constexpr int kFade = 40;            // percent
constexpr std::int64_t kRest = 400;  // milliseconds, longer than the slider needs to settle

/// The slider of the control; null if no panel holds it.
HWND findSlider(WindowSystem& windows) {
    const HWND control = windows.findByName(kControl);
    return control == nullptr ? nullptr : findPart(windows, control, "slider");
}

void printSteps(Workbench& workbench, std::ostream& out) {
    for (const JournalRecord& record : workbench.journal().take())
        out << describeStep(record) << '\n';
}

}  // namespace

void showGestureRoad(Workbench& workbench, const std::string& drawing, std::ostream& out) {
    openDashboard(workbench, drawing);
    out << treeText(workbench.windows(), workbench.windows().focus()) << '\n';
    const HWND slider = findSlider(workbench.windows());
    if (slider == nullptr) {
        out << "No panel on show holds " << kControl << ".\n";
        return;
    }
    workbench.journal().take();
    out << "The road of one gesture: " << kControl << " is dragged to " << kFade << " and rests.\n";
    gestures::dragSlider(workbench.toolkit(), slider, {kFade});
    gestures::releaseSlider(workbench.toolkit(), slider);
    letHostRun(workbench);
    workbench.windows().advance(kRest);
    letHostRun(workbench);
    printSteps(workbench, out);
}

}  // namespace workbench
