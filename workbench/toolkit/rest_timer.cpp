#include "workbench/toolkit/rest_timer.h"

#include <utility>

namespace workbench {

namespace {

constexpr UINT kTimer = 1;

}  // namespace

class RestTimer::DueWidget final : public Widget {
public:
    DueWidget(WindowSystem& windows, std::function<void()> due)
        : m_windows(windows),
          m_due(std::move(due)) {}
    bool handle(Window& window, UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/,
                LRESULT& /*answer*/) override {
        if (message != WM_TIMER)
            return false;
        m_windows.timers().stop(window.handle, kTimer);
        m_due();
        return true;
    }

private:
    WindowSystem& m_windows;
    std::function<void()> m_due;
};

RestTimer::RestTimer(WindowSystem& windows, const char* className, std::function<void()> due)
    : m_windows(windows) {
    WindowCreation creation;
    creation.className = className;
    creation.widget = std::make_unique<DueWidget>(windows, std::move(due));
    m_windows.create(m_window, std::move(creation));
}

RestTimer::~RestTimer() {
    m_windows.destroy(m_window.m_hWnd);
}

void RestTimer::start(UINT milliseconds) {
    m_windows.timers().start(m_window.m_hWnd, kTimer, milliseconds);
}

void RestTimer::stop() {
    m_windows.timers().stop(m_window.m_hWnd, kTimer);
}

}  // namespace workbench
