#include "bench/receivers.h"

#include <benchmark/benchmark.h>
#include <sigc++/sigc++.h>

#include <memory>
#include <vector>

namespace {

class Receiver : public sigc::trackable {
public:
    void onChanged(int value) { m_sum += value; }

private:
    long m_sum = 0;
};

void sigcSignal(benchmark::State& state) {
    sigc::signal<void(int)> changed;
    std::vector<std::unique_ptr<Receiver>> receivers;
    for (int i = 0; i < state.range(0); ++i) {
        receivers.push_back(std::make_unique<Receiver>());
        changed.connect(sigc::mem_fun(*receivers.back(), &Receiver::onChanged));
    }
    const bench::AllocationMeter meter;
    for (auto _ : state) {
        changed(1);
        benchmark::ClobberMemory();
    }
    bench::setReceiverCounters(state, meter);
}
BENCHMARK(sigcSignal)->Apply(bench::withReceivers);

}  // namespace
