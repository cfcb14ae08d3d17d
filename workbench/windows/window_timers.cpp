#include "workbench/windows/window_timers.h"

#include <algorithm>

namespace workbench {

void WindowTimers::start(HWND window, UINT number, UINT milliseconds) {
    if (m_tree.find(window) == nullptr)
        return;
    stop(window, number);
    const std::int64_t period = std::max<std::int64_t>(1, milliseconds);
    m_timers.push_back({window, number, period, m_clock.now() + period});
}

void WindowTimers::stop(HWND window, UINT number) {
    std::erase_if(m_timers, [window, number](const Timer& timer) {
        return timer.window == window && timer.number == number;
    });
}

void WindowTimers::windowEnded(HWND window) {
    std::erase_if(m_timers, [window](const Timer& timer) { return timer.window == window; });
}

std::optional<std::int64_t> WindowTimers::nextDue() const {
    std::optional<std::int64_t> next;
    for (const Timer& timer : m_timers)
        next = next ? std::min(*next, timer.due) : timer.due;
    return next;
}

void WindowTimers::advance(std::int64_t milliseconds) {
    const std::int64_t end = m_clock.now() + std::max<std::int64_t>(0, milliseconds);
    m_queue.runPosted();
    while (const auto timer = takeDue(end)) {
        m_clock.advanceTo(timer->due);
        fire(*timer);
        m_queue.runPosted();
    }
    m_clock.advanceTo(end);
}

/// The timer that fires first until a time, which is set to its next period; nothing if none does.
std::optional<WindowTimers::Timer> WindowTimers::takeDue(std::int64_t end) {
    const auto first = std::min_element(
        m_timers.begin(), m_timers.end(),
        [](const Timer& left, const Timer& right) { return left.due < right.due; });
    if (first == m_timers.end() || first->due > end)
        return {};
    const Timer taken = *first;
    first->due += first->period;
    return taken;
}

void WindowTimers::fire(const Timer& timer) {
    m_messages.deliver(
        timer.window, [this, &timer] { m_messages.send(timer.window, WM_TIMER, timer.number, 0); });
}

}  // namespace workbench
