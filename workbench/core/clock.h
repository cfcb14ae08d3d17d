#pragma once

#include <cstdint>

namespace workbench {

/// The workbench's time in milliseconds since its start. It stands still unless it is advanced: by
/// scripts and tests by hand, by the desktop with real time.
class Clock {
public:
    std::int64_t now() const { return m_now; }
    /// Moves forward to a time; an earlier one is ignored.
    void advanceTo(std::int64_t time) {
        if (time > m_now)
            m_now = time;
    }

private:
    std::int64_t m_now = 0;
};

}  // namespace workbench
