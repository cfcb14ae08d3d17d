#include "workbench/base/turn.h"
#include "workbench/core/invalid_argument.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace workbench {

/// Delivers one message; a failure of the invalid-argument kind ends it with a box.
template <class Delivery>
void WindowSystem::deliver(HWND window, Delivery delivery) {
    try {
        delivery();
    } catch (const InvalidArgument& failure) {
        m_journal.add(
            "box", {{"text", failure.what()}, {"string", Value()}, {"owner", ownerName(window)}});
    }
}

bool WindowSystem::post(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (find(window) == nullptr)
        return false;
    m_posted.push_back({window, message, wParam, lParam});
    return true;
}

void WindowSystem::input(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    MSG record{window == nullptr ? m_focus : window, message, wParam, lParam};
    deliver(record.hwnd, [this, &record] {
        if (!preTranslate(record))
            send(record.hwnd, record.message, record.wParam, record.lParam);
    });
}

bool WindowSystem::preTranslate(MSG& message) {
    const Turn turn;
    HWND next = message.hwnd;
    while (const Window* const window = find(next)) {
        next = window->parent;
        if (window->object->PreTranslateMessage(&message) != 0)
            return true;
    }
    return false;
}

void WindowSystem::runPosted() {
    for (int run = 0; !m_posted.empty(); ++run) {
        const Posted next = m_posted.front();
        m_posted.pop_front();
        const Window* const window = find(next.window);
        if (window == nullptr)
            continue;
        if (run >= kMostPostedMessages)
            throw std::runtime_error("posted messages do not end: message " +
                                     std::to_string(next.message) + " to " + window->className +
                                     " \"" + ownerName(next.window) + "\"");
        deliver(next.window,
                [this, &next] { send(next.window, next.message, next.wParam, next.lParam); });
    }
}

void WindowSystem::setTimer(HWND window, UINT timer, UINT milliseconds) {
    Window* const found = find(window);
    if (found == nullptr)
        return;
    killTimer(window, timer);
    const std::int64_t period = std::max<std::int64_t>(1, milliseconds);
    found->timers.push_back({timer, period, m_clock.now() + period, ++m_timersStarted});
}

void WindowSystem::killTimer(HWND window, UINT timer) {
    if (Window* const found = find(window))
        std::erase_if(found->timers,
                      [timer](const WindowTimer& each) { return each.number == timer; });
}

void WindowSystem::advance(std::int64_t milliseconds) {
    const std::int64_t end = m_clock.now() + std::max<std::int64_t>(0, milliseconds);
    runPosted();
    while (const auto timer = takeDueTimer(end)) {
        m_clock.advanceTo(timer->due);
        deliver(timer->window, [this, &timer] { send(timer->window, WM_TIMER, timer->number, 0); });
        runPosted();
    }
    m_clock.advanceTo(end);
}

std::optional<std::int64_t> WindowSystem::nextTimerDue() {
    std::optional<std::int64_t> next;
    m_windows.forEach([&next](const Window& window) {
        for (const WindowTimer& timer : window.timers)
            next = next ? std::min(*next, timer.due) : timer.due;
    });
    return next;
}

/// The timer that fires first until a time, set to its next period; nothing if none does.
std::optional<WindowSystem::DueTimer> WindowSystem::takeDueTimer(std::int64_t end) {
    WindowTimer* first = nullptr;
    HWND owner = nullptr;
    m_windows.forEach([&](Window& window) {
        for (WindowTimer& timer : window.timers) {
            const bool isEarlier = first == nullptr || timer.due < first->due ||
                                   (timer.due == first->due && timer.order < first->order);
            if (timer.due > end || !isEarlier)
                continue;
            first = &timer;
            owner = window.handle;
        }
    });
    if (first == nullptr)
        return {};
    const DueTimer due{owner, first->number, first->due};
    first->due += first->period;
    return due;
}

}  // namespace workbench
