#pragma once

#include "workbench/windows/window_system.h"

#include <functional>

namespace workbench {

/// Does something once the clock has run on for a while: a hidden window bears the timer.
class RestTimer {
public:
    /// `className` is that of the hidden window.
    RestTimer(WindowSystem& windows, const char* className, std::function<void()> due);
    RestTimer(const RestTimer&) = delete;
    RestTimer& operator=(const RestTimer&) = delete;
    ~RestTimer();

    /// Begins the wait, or begins it anew.
    void start(UINT milliseconds);
    void stop();

private:
    class DueWidget;

    WindowSystem& m_windows;
    CWnd m_window;
};

}  // namespace workbench
