#include "bench/receivers.h"
#include "bench/session.h"
#include "core/broadcast_messages.h"
#include "module/manager.h"
#include "module/module.h"
#include "workbench/editor/editor.h"
#include "workbench/toolkit/toolkit.h"

#include <benchmark/benchmark.h>

// The three ways on which events reach all custom controls.

namespace {

std::string menuOfReceivers(const benchmark::State& state) {
    return bench::menuOf(1, 0, static_cast<int>(state.range(0)));
}

/// A broadcast that the controls leave to the toolkit.
void broadcastToControls(benchmark::State& state) {
    bench::Session session(menuOfReceivers(state));
    session.showDashboard();
    VxDaManager& manager = *dashboardManager();
    const bench::AllocationMeter meter;
    for (auto _ : state)
        manager.broadcast(WM_DA_VIEW_CHANGED, 0, 0);
    bench::setReceiverCounters(state, meter);
}
BENCHMARK(broadcastToControls)->Apply(bench::withReceivers);

/// The whole road of a variable that no control is bound to: editor, manager, controls, control
/// manager.
void systemVariableEvent(benchmark::State& state) {
    bench::Session session(menuOfReceivers(state));
    session.showDashboard();
    workbench::EditorReactors& reactors = session.workbench().editor().reactors();
    const bench::AllocationMeter meter;
    for (auto _ : state)
        reactors.sysVarChanged(L"STEPSIZE", true);
    bench::setReceiverCounters(state, meter);
}
BENCHMARK(systemVariableEvent)->Apply(bench::withReceivers);

/// An idle tick with nothing to do: the palette set passes it on to its controls.
void idleTick(benchmark::State& state) {
    bench::Session session(menuOfReceivers(state));
    session.showDashboard();
    workbench::Toolkit& toolkit = session.workbench().toolkit();
    const bench::AllocationMeter meter;
    for (auto _ : state)
        toolkit.idleUpdate();
    bench::setReceiverCounters(state, meter);
}
BENCHMARK(idleTick)->Apply(bench::withReceivers);

}  // namespace
