#include "bench/session.h"
#include "module/manager.h"
#include "module/module.h"
#include "palette/panel_set.h"

#include <benchmark/benchmark.h>

namespace {

/// Writes the panels' state into the tree of the profile; the file is not part of it.
void writeProfileTree(benchmark::State& state) {
    bench::Session session(bench::menuOf(static_cast<int>(state.range(0)), 1));
    session.showDashboard();
    CVxDaPanelSet* panelSet = dashboardManager()->panelSet();
    for (auto _ : state)
        panelSet->saveToProfile();
}
BENCHMARK(writeProfileTree)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);

void readProfileTree(benchmark::State& state) {
    bench::Session session(bench::menuOf(static_cast<int>(state.range(0)), 1));
    session.showDashboard();
    CVxDaPanelSet* panelSet = dashboardManager()->panelSet();
    panelSet->saveToProfile();
    for (auto _ : state)
        panelSet->loadFromProfile();
}
BENCHMARK(readProfileTree)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);

}  // namespace
