#include "workbench/host/workbench.h"
#include "workbench/loader/module_loader.h"

#include <benchmark/benchmark.h>

namespace {

/// Loads and unloads the real module: library, resources, theme, reactors.
void loadAndUnload(benchmark::State& state) {
    workbench::WorkbenchOptions options;
    options.libraryDir = WORKBENCH_BIN_DIR;
    workbench::Workbench bench(options);
    bench.journal().setRecording(false);
    for (auto _ : state) {
        bench.modules().loadModule(L"VxDashboard.qlx");
        bench.modules().unloadModule(L"VxDashboard.qlx");
    }
}
BENCHMARK(loadAndUnload)->Unit(benchmark::kMicrosecond);

}  // namespace
