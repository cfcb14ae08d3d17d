#include "bench/session.h"
#include "module/manager.h"
#include "module/module.h"
#include "palette/panel_set.h"
#include "palette/tool_items.h"

#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/vxdashboard.h>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstddef>

namespace {

constexpr int kItemsPerPanel = 20;

/// Bytes of the heap in use, the host's objects behind the items too.
std::size_t heapInUse() {
    return mallinfo2().uordblks;
}

/// What the panels on show take, an item.
double bytesPerItem(int items) {
    dashboardManager()->notify(kDashboardUnload);
    const std::size_t before = heapInUse();
    dashboardManager()->notify(kDashboardReload);
    return static_cast<double>(heapInUse() - before) / items;
}

/// Builds all panels anew, as at a show or a workspace switch.
void showPanels(benchmark::State& state) {
    const int panels = static_cast<int>(state.range(0));
    bench::Session session(bench::menuOf(panels, kItemsPerPanel));
    session.showDashboard();
    state.counters["bytes_per_item"] = bytesPerItem(panels * kItemsPerPanel);
    for (auto _ : state) {
        state.PauseTiming();
        dashboardManager()->notify(kDashboardUnload);
        state.ResumeTiming();
        dashboardManager()->notify(kDashboardReload);
    }
    state.counters["per_item"] =
        benchmark::Counter(static_cast<double>(state.iterations() * panels * kItemsPerPanel),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(showPanels)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

void findItems(benchmark::State& state) {
    bench::Session session(bench::menuOf(static_cast<int>(state.range(0)), kItemsPerPanel));
    session.showDashboard();
    const CVxDaPanelSet* panelSet = dashboardManager()->panelSet();
    for (auto _ : state) {
        benchmark::DoNotOptimize(panelSet->findToolPanelItems(L"PANEL7_ITEM3"));
    }
}
BENCHMARK(findItems)->Arg(10)->Arg(100)->Arg(1000);

void setFlagThatChangesNothing(benchmark::State& state) {
    bench::Session session(bench::menuOf(static_cast<int>(state.range(0)), kItemsPerPanel));
    session.showDashboard();
    const bench::AllocationMeter meter;
    for (auto _ : state) {
        benchmark::DoNotOptimize(SetItemFlag(L"PANEL7_ITEM3", false, kItemChecked));
    }
    state.counters["allocations"] =
        benchmark::Counter(meter.allocations(), benchmark::Counter::kAvgIterations);
}
BENCHMARK(setFlagThatChangesNothing)->Arg(10)->Arg(100)->Arg(1000);

}  // namespace
