#include "bench/session.h"

#include "core/broadcast_messages.h"
#include "module/manager.h"
#include "module/module.h"
#include "palette/panel_set.h"
#include "workbench/editor/editor.h"

#include <benchmark/benchmark.h>

namespace {

/// Cost of one event per receiver; constant from 10 to 1000 receivers is the goal.
void setReceiverCounters(benchmark::State& state, const bench::AllocationMeter& meter) {
    state.counters["per_receiver"] =
        benchmark::Counter(static_cast<double>(state.iterations() * state.range(0)),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    state.counters["allocations"] =
        benchmark::Counter(meter.allocations(), benchmark::Counter::kAvgIterations);
}

void broadcastToControls(benchmark::State& state) {
    bench::Session session(bench::menuOf(1, 0, static_cast<int>(state.range(0))));
    session.showDashboard();
    CVxDaPanelSet* receivers = dashboardManager()->panelSet();
    const bench::AllocationMeter meter;
    for (auto _ : state)
        receivers->sendToControls(WM_DA_VIEW_CHANGED, 0, 0);
    setReceiverCounters(state, meter);
}
BENCHMARK(broadcastToControls)->Arg(10)->Arg(100)->Arg(1000);

/// The whole road of a variable that no control is bound to: editor, manager, controls, control
/// manager.
void systemVariableEvent(benchmark::State& state) {
    bench::Session session(bench::menuOf(1, 0, static_cast<int>(state.range(0))));
    session.showDashboard();
    workbench::EditorReactors& reactors = session.workbench().editor().reactors();
    const bench::AllocationMeter meter;
    for (auto _ : state)
        reactors.sysVarChanged(L"STEPSIZE", true);
    setReceiverCounters(state, meter);
}
BENCHMARK(systemVariableEvent)->Arg(10)->Arg(100)->Arg(1000);

/// An idle tick with nothing to do: the palette set passes it on to its controls.
void idleTick(benchmark::State& state) {
    bench::Session session(bench::menuOf(1, 0, static_cast<int>(state.range(0))));
    session.showDashboard();
    CVxDaPanelSet* receivers = dashboardManager()->panelSet();
    const bench::AllocationMeter meter;
    for (auto _ : state)
        receivers->sendIdleUpdate();
    setReceiverCounters(state, meter);
}
BENCHMARK(idleTick)->Arg(10)->Arg(100)->Arg(1000);

}  // namespace
