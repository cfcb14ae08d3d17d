#include "bench/receivers.h"

namespace bench {

void withReceivers(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(10)->Arg(100)->Arg(1000);
}

void setReceiverCounters(benchmark::State& state, const AllocationMeter& meter) {
    state.counters["per_receiver"] =
        benchmark::Counter(static_cast<double>(state.iterations() * state.range(0)),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    state.counters["allocations"] =
        benchmark::Counter(meter.allocations(), benchmark::Counter::kAvgIterations);
}

}  // namespace bench
