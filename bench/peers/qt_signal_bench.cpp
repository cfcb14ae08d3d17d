#include "bench/receivers.h"

#include <benchmark/benchmark.h>

#include <QObject>
#include <memory>
#include <vector>

namespace {

class Sender : public QObject {
    Q_OBJECT
Q_SIGNALS:
    void changed(int value);
};

class Receiver : public QObject {
    Q_OBJECT
public:
    void onChanged(int value) { m_sum += value; }

private:
    long m_sum = 0;
};

/// A signal with one slot a receiver, connected by member pointers, directly.
void qtSignal(benchmark::State& state) {
    Sender sender;
    std::vector<std::unique_ptr<Receiver>> receivers;
    for (int i = 0; i < state.range(0); ++i) {
        receivers.push_back(std::make_unique<Receiver>());
        QObject::connect(&sender, &Sender::changed, receivers.back().get(), &Receiver::onChanged);
    }
    const bench::AllocationMeter meter;
    for (auto _ : state) {
        Q_EMIT sender.changed(1);
        benchmark::ClobberMemory();
    }
    bench::setReceiverCounters(state, meter);
}
BENCHMARK(qtSignal)->Apply(bench::withReceivers);

}  // namespace

#include "qt_signal_bench.moc"
