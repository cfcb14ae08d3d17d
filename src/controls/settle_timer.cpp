#include "controls/settle_timer.h"

#include <hostapi/window/wnd.h>

void SettleTimer::move() {
    m_movedSinceTick = true;
    if (m_runs)
        return;
    m_window.SetTimer(m_timer, m_periodMs);
    m_runs = true;
}

bool SettleTimer::takeTick() {
    if (m_movedSinceTick) {
        m_movedSinceTick = false;
        return false;
    }
    m_runs = false;
    m_window.KillTimer(m_timer);
    return true;
}
