#include "workbench/drawing/database/date_time.h"

#include "workbench/base/value.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdio>
#include <string_view>

namespace workbench::drawing {

namespace {

bool isLeapYear(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int monthLength(int year, int month) {
    static constexpr std::array<int, 12> kLengths{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isLeapYear(year) ? 29 : kLengths[static_cast<std::size_t>(month - 1)];
}

/// Takes fixed-width numbers and the marks between them off the front of a text.
class Fields {
public:
    explicit Fields(std::string_view text) : m_rest(text) {}

    bool mark(char mark) {
        if (m_rest.empty() || m_rest.front() != mark) {
            return false;
        }
        m_rest.remove_prefix(1);
        return true;
    }

    bool number(std::size_t width, int& out) {
        if (m_rest.size() < width) {
            return false;
        }
        const char* end = m_rest.data() + width;
        const auto parsed = std::from_chars(m_rest.data(), end, out);
        if (parsed.ec != std::errc() || parsed.ptr != end || out < 0) {
            return false;
        }
        m_rest.remove_prefix(width);
        return true;
    }

    bool atEnd() const { return m_rest.empty(); }

private:
    std::string_view m_rest;
};

bool readFields(const std::string& text, DateTime& moment) {
    Fields fields(text);
    if (!fields.number(4, moment.year) || !fields.mark('-') || !fields.number(2, moment.month) ||
        !fields.mark('-') || !fields.number(2, moment.day) || !fields.mark('T') ||
        !fields.number(2, moment.hour) || !fields.mark(':') || !fields.number(2, moment.minute)) {
        return false;
    }
    moment.second = 0;
    moment.millisecond = 0;
    if (fields.mark(':') && !fields.number(2, moment.second)) {
        return false;
    }
    if (fields.mark('.') && !fields.number(3, moment.millisecond)) {
        return false;
    }
    return fields.atEnd();
}

bool isOnCalendar(const DateTime& moment) {
    return moment.month >= 1 && moment.month <= 12 && moment.day >= 1 &&
           moment.day <= monthLength(moment.year, moment.month) && moment.hour <= 23 &&
           moment.minute <= 59 && moment.second <= 59;
}

}  // namespace

std::string dateTimeText(const DateTime& moment) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02dT%02d:%02d:%02d", moment.year, moment.month,
                  moment.day, moment.hour, moment.minute, moment.second);
    std::string text = buffer;
    if (moment.millisecond != 0) {
        std::snprintf(buffer, sizeof buffer, ".%03d", moment.millisecond);
        text += buffer;
    }
    return text;
}

DateTime parseDateTime(const std::string& text) {
    DateTime moment;
    if (!readFields(text, moment) || !isOnCalendar(moment)) {
        throw ValueError("expected a date and time as 2026-06-21T15:00:00, got \"" + text + "\"");
    }
    return moment;
}

}  // namespace workbench::drawing
