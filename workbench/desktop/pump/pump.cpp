#include "workbench/desktop/pump/pump.h"

#include "workbench/host/workbench.h"
#include "workbench/startup/open_dashboard.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <exception>

namespace workbench::desktop {

namespace {

constexpr std::int64_t kLongestWait = 60'000;  // milliseconds; then the timers are asked again

}  // namespace

Pump::Pump(Workbench& workbench) : m_workbench(workbench) {
    m_due.setSingleShot(true);
    m_due.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_due, &QTimer::timeout, [this] { act([] {}); });
    m_idle.setSingleShot(true);
    QObject::connect(&m_idle, &QTimer::timeout, [this] { idle(); });
}

void Pump::act(const std::function<void()>& what) {
    ++m_depth;
    if (m_depth == 1)
        catchUp();
    guarded(what);
    // Inside a menu or a box the host is in the middle of something, and goes on with it first.
    if (m_depth == 1 && !m_held) {
        runHost();
        m_idle.start(0);
        armTimer();
    }
    --m_depth;
    if (m_onRest)
        m_onRest();
}

void Pump::hold() {
    m_held = true;
    m_idle.stop();
    m_due.stop();
}

void Pump::resume() {
    m_held = false;
    m_base = m_workbench.clock().now();
    m_elapsed.start();
    act([] {});
}

void Pump::guarded(const std::function<void()>& what) {
    try {
        what();
    } catch (const std::exception& failure) {
        if (m_onFailure)
            m_onFailure(QString::fromUtf8(failure.what()));
    }
}

void Pump::catchUp() {
    const std::int64_t behind = m_base + m_elapsed.elapsed() - m_workbench.clock().now();
    if (!m_held && behind > 0)
        guarded([this, behind] { m_workbench.windows().advance(behind); });
}

void Pump::runHost() {
    guarded([this] { letHostRun(m_workbench); });
}

void Pump::idle() {
    if (m_depth > 0 || m_held)
        return;
    ++m_depth;
    m_idling = true;
    guarded([this] { m_workbench.toolkit().idleUpdate(); });
    m_idling = false;
    runHost();
    armTimer();
    --m_depth;
    if (m_onIdle)
        m_onIdle();
    if (m_onRest)
        m_onRest();
}

void Pump::armTimer() {
    const std::optional<std::int64_t> due = m_workbench.windows().timers().nextDue();
    if (!due) {
        m_due.stop();
        return;
    }
    const std::int64_t wait = *due - m_workbench.clock().now();
    m_due.start(static_cast<int>(std::clamp<std::int64_t>(wait, 0, kLongestWait)));
}

}  // namespace workbench::desktop
