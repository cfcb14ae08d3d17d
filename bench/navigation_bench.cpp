#include "bench/session.h"
#include "module/manager.h"
#include "module/module.h"
#include "palette/panel_set.h"
#include "workbench/editor/editor.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/messages.h>

#include <benchmark/benchmark.h>

namespace {

constexpr const char* kLensControl = "3DNavZoomSliderControl";

/// The whole navigation panel: the tools whose states are kept, and all six controls.
std::string navigationMenu() {
    return bench::menuWith(
        {"ID_Camera", "ID_CAMERAS_OnOf", "ID_Perspective_Projection", "ID_Parallel_Projection",
         "ID_Animation_Play", "ID_Animation_Record", "ID_Animation_Pause", "ID_Animation_Save"},
        {kLensControl, "3DNavStepSizeSliderControl", "3DNavStepsPerSecSliderControl",
         "3DNavViewComboCtrl", "3DNavPointTriplet1", "3DNavPointTriplet2"});
}

/// With the end of a command, from which on the controls follow the view on idle ticks.
void showNavigation(bench::Session& session, bool perspective) {
    session.showDashboard();
    workbench::Editor& editor = session.workbench().editor();
    editor.set(L"PERSPECTIVE", perspective ? 1 : 0);
    editor.beginCommand(L"LINE");
    editor.finishCommand(workbench::CommandState::Ended);
}

/// An idle tick with nothing changed, in a parallel (0) or a perspective view (1), in which the
/// texts of lens and angle are made.
void idleTickOfNavigation(benchmark::State& state) {
    bench::Session session(navigationMenu());
    showNavigation(session, state.range(0) != 0);
    CVxDaPanelSet* receivers = dashboardManager()->panelSet();
    receivers->sendIdleUpdate();
    const bench::AllocationMeter meter;
    for (auto _ : state)
        receivers->sendIdleUpdate();
    state.counters["allocations"] =
        benchmark::Counter(meter.allocations(), benchmark::Counter::kAvgIterations);
}
BENCHMARK(idleTickOfNavigation)->Arg(0)->Arg(1);

/// One step of a drag of the lens: record for undo, view, texts, and the notice to the host.
void lensDragStep(benchmark::State& state) {
    bench::Session session(navigationMenu());
    showNavigation(session, true);
    workbench::WindowSystem& windows = session.workbench().windows();
    const HWND control = windows.findByName(kLensControl);
    workbench::Window& slider = *windows.find(windows.find(control)->children.front());
    auto& widget = dynamic_cast<workbench::SliderWidget&>(*slider.widget);
    int position = 200;
    for (auto _ : state) {
        position = position < 1200 ? position + 10 : 200;
        widget.setPosition(slider, position);
        windows.send(control, WM_QRUI_POSITION, static_cast<WPARAM>(position),
                     reinterpret_cast<LPARAM>(slider.handle));
    }
}
BENCHMARK(lensDragStep)->Iterations(1000);

}  // namespace
