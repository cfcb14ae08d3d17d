#include "bench/receivers.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace {

class Receiver {
public:
    virtual ~Receiver() = default;
    virtual void onChanged(int value) = 0;
};

// Two classes, so that the compiler can't tell which one is called.

class Adder final : public Receiver {
public:
    void onChanged(int value) override { m_sum += value; }

private:
    long m_sum = 0;
};

class Subtracter final : public Receiver {
public:
    void onChanged(int value) override { m_sum -= value; }

private:
    long m_sum = 0;
};

std::unique_ptr<Receiver> makeReceiver(bool adds) {
    if (adds)
        return std::make_unique<Adder>();
    return std::make_unique<Subtracter>();
}

/// The floor: a list of pointers, and nothing that minds their lives.
void bareVirtualCall(benchmark::State& state) {
    std::vector<std::unique_ptr<Receiver>> receivers;
    for (int i = 0; i < state.range(0); ++i)
        receivers.push_back(makeReceiver(i % 2 == 0));
    const bench::AllocationMeter meter;
    for (auto _ : state) {
        for (const std::unique_ptr<Receiver>& receiver : receivers)
            receiver->onChanged(1);
        benchmark::ClobberMemory();
    }
    bench::setReceiverCounters(state, meter);
}
BENCHMARK(bareVirtualCall)->Apply(bench::withReceivers);

}  // namespace
