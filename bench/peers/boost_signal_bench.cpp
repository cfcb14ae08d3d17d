#include "bench/receivers.h"

#include <benchmark/benchmark.h>
#include <boost/signals2.hpp>

#include <memory>
#include <vector>

namespace {

class Receiver {
public:
    explicit Receiver(boost::signals2::signal<void(int)>& changed)
        : m_connection(changed.connect([this](int value) { m_sum += value; })) {}

private:
    long m_sum = 0;
    boost::signals2::scoped_connection m_connection;
};

void boostSignal(benchmark::State& state) {
    boost::signals2::signal<void(int)> changed;
    std::vector<std::unique_ptr<Receiver>> receivers;
    for (int i = 0; i < state.range(0); ++i)
        receivers.push_back(std::make_unique<Receiver>(changed));
    const bench::AllocationMeter meter;
    for (auto _ : state) {
        changed(1);
        benchmark::ClobberMemory();
    }
    bench::setReceiverCounters(state, meter);
}
BENCHMARK(boostSignal)->Apply(bench::withReceivers);

}  // namespace
