#pragma once

#include "workbench/core/clock.h"
#include "workbench/windows/message_dispatcher.h"
#include "workbench/windows/message_queue.h"
#include "workbench/windows/window_tree.h"

#include <hostapi/window.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace workbench {

/// The running timers of all windows, and the clock that they run by.
class WindowTimers {
public:
    WindowTimers(Clock& clock, const WindowTree& tree, MessageDispatcher& messages,
                 MessageQueue& queue)
        : m_clock(clock),
          m_tree(tree),
          m_messages(messages),
          m_queue(queue) {}
    WindowTimers(const WindowTimers&) = delete;
    WindowTimers& operator=(const WindowTimers&) = delete;

    /// Starts, or starts again, a timer of a window; a period of 0 counts as 1 millisecond. A stale
    /// handle is ignored.
    void start(HWND window, UINT number, UINT milliseconds);
    /// Stops a timer; an unknown one is ignored.
    void stop(HWND window, UINT number);
    /// Stops all timers of a window that is gone.
    void windowEnded(HWND window);

    std::int64_t now() const { return m_clock.now(); }
    /// When the next timer fires, on the clock; nothing while none runs.
    std::optional<std::int64_t> nextDue() const;
    /// Advances the clock by milliseconds; posted messages and timers run at their times, in order.
    void advance(std::int64_t milliseconds);

private:
    struct Timer {
        HWND window;
        UINT number;
        std::int64_t period;  // milliseconds, at least 1
        std::int64_t due;     // clock time of the next firing
    };

    std::optional<Timer> takeDue(std::int64_t end);
    void fire(const Timer& timer);

    Clock& m_clock;
    const WindowTree& m_tree;
    MessageDispatcher& m_messages;
    MessageQueue& m_queue;
    std::vector<Timer> m_timers;  // ascending by start; of two due at one time the first one fires
};

}  // namespace workbench
