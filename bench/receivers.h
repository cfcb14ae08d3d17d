#pragma once

#include "bench/session.h"

#include <benchmark/benchmark.h>

namespace bench {

/// Runs a benchmark of one event with 10, 100 and 1000 receivers, its argument.
void withReceivers(benchmark::internal::Benchmark* benchmark);

/// Notes what one event costs a receiver, and what it allocates.
void setReceiverCounters(benchmark::State& state, const AllocationMeter& meter);

}  // namespace bench
