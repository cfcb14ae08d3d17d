#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QTimer>

#include <cstdint>
#include <functional>

namespace workbench {
class Workbench;
}

namespace workbench::desktop {

/// Keeps the workbench going in real time: whatever a user does runs through `act`, after which
/// posted messages, waiting command text, and one idle tick follow, as in a host. Timers run when
/// they are due; nothing is asked for in between.
class Pump {
public:
    explicit Pump(Workbench& workbench);
    Pump(const Pump&) = delete;
    Pump& operator=(const Pump&) = delete;

    /// Does something with the workbench and lets the host come round. A failure is told.
    void act(const std::function<void()>& what);
    /// Lets the host come round for what a script did by itself: its clock goes on from here.
    void resume();
    /// Holds real time, as while a script has the clock. `resume` ends it.
    void hold() { m_held = true; }
    bool isHeld() const { return m_held; }

    /// Told of each failure, in words.
    void setOnFailure(std::function<void(const QString&)> told) { m_onFailure = std::move(told); }
    /// Told whenever the host has come to rest after something was done.
    void setOnRest(std::function<void()> told) { m_onRest = std::move(told); }

private:
    void guarded(const std::function<void()>& what);
    void catchUp();
    void runHost();
    void idle();
    void armTimer();

    Workbench& m_workbench;
    std::function<void(const QString&)> m_onFailure;
    std::function<void()> m_onRest;
    QElapsedTimer m_elapsed;
    std::int64_t m_base = 0;  // the workbench's clock when m_elapsed was started
    QTimer m_due;
    QTimer m_idle;
    int m_depth = 0;
    bool m_held = false;
};

}  // namespace workbench::desktop
