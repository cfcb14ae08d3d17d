#pragma once

#include <string>

namespace workbench::drawing {

/// A moment of the calendar, local to the drawing.
struct DateTime {
    int year = 2026;
    int month = 6;  // 1 to 12
    int day = 21;   // 1 to the length of the month
    int hour = 15;  // 0 to 23
    int minute = 0;
    int second = 0;
    int millisecond = 0;

    friend bool operator==(const DateTime&, const DateTime&) = default;
};

/// "2026-06-21T15:00:00", with ".250" appended when there are milliseconds.
std::string dateTimeText(const DateTime& moment);

/// Reads that form; seconds may be left out. Throws `ValueError` for any other text and for a
/// moment that the calendar hasn't got.
DateTime parseDateTime(const std::string& text);

}  // namespace workbench::drawing
