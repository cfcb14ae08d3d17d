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
///
/// It begins held: the clock stands, and nothing runs but what is done, until `resume`.
class Pump {
public:
    explicit Pump(Workbench& workbench);
    Pump(const Pump&) = delete;
    Pump& operator=(const Pump&) = delete;

    /// Does something with the workbench and lets the host come round. A failure is told.
    void act(const std::function<void()>& what);
    /// Lets the host come round, and its clock go on with real time from here.
    void resume();
    /// Leaves clock and host to a script, and questions to its answers. `resume` ends it.
    void hold();
    bool isHeld() const { return m_held; }
    /// Whether what happens now is only an idle tick's.
    bool isIdling() const { return m_idling; }
    /// Whether something that was done has not yet ended with its idle tick.
    bool isBusy() const { return m_depth > 0 || m_idle.isActive(); }

    /// Told of each failure, in words.
    void setOnFailure(std::function<void(const QString&)> told) { m_onFailure = std::move(told); }
    /// Told whenever the host has come to rest after something was done.
    void setOnRest(std::function<void()> told) { m_onRest = std::move(told); }
    /// Told, ahead of that, when the idle tick behind it has been, too.
    void setOnIdle(std::function<void()> told) { m_onIdle = std::move(told); }

private:
    void guarded(const std::function<void()>& what);
    void catchUp();
    void runHost();
    void idle();
    void armTimer();

    Workbench& m_workbench;
    std::function<void(const QString&)> m_onFailure;
    std::function<void()> m_onRest;
    std::function<void()> m_onIdle;
    QElapsedTimer m_elapsed;
    std::int64_t m_base = 0;  // the workbench's clock when m_elapsed was started
    QTimer m_due;
    QTimer m_idle;
    int m_depth = 0;
    bool m_held = true;
    bool m_idling = false;
};

}  // namespace workbench::desktop
