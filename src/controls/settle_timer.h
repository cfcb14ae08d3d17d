#pragma once

#include <hostapi/types.h>

class CWnd;

/// Tells when a drag has come to rest: when a window's timer fires and nothing moved for a whole
/// period of it.
class SettleTimer {
public:
    /// The window has to outlive this; `timer` is its own number for the timer.
    SettleTimer(CWnd& window, UINT timer, UINT periodMs)
        : m_window(window),
          m_timer(timer),
          m_periodMs(periodMs) {}

    /// Notes a move. The first starts the timer.
    void move();
    /// Whether a `WM_TIMER` with this wParam is this timer's.
    bool isOwn(WPARAM timer) const { return timer == m_timer; }
    /// Takes a tick. Whether all is at rest; the timer has ended then.
    bool takeTick();

private:
    CWnd& m_window;
    UINT m_timer;
    UINT m_periodMs;
    bool m_movedSinceTick = false;
    bool m_runs = false;
};
