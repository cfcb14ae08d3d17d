#include "workbench/drawing/database/date_time.h"

#include "workbench/base/value.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(DateTime, ComesBackAsItWasWritten) {
    EXPECT_EQ(dateTimeText(parseDateTime("2024-02-29T23:59:58")), "2024-02-29T23:59:58");
    EXPECT_EQ(dateTimeText(parseDateTime("0999-01-01T00:00:00.007")), "0999-01-01T00:00:00.007");
}

TEST(DateTime, SecondsMayBeLeftOut) {
    const DateTime moment = parseDateTime("2026-06-21T15:30");
    EXPECT_EQ(moment.minute, 30);
    EXPECT_EQ(moment.second, 0);
}

TEST(DateTime, WhatTheCalendarHasNotIsRefused) {
    for (const char* text : {"2026-02-29T00:00", "2026-13-01T00:00", "2026-00-01T00:00",
                             "2026-04-31T00:00", "2026-04-30T24:00", "2026-04-30T00:60",
                             "2026-4-30T00:00", "2026-04-30", "2026-04-30T00:00x", ""}) {
        EXPECT_THROW(parseDateTime(text), ValueError) << text;
    }
}

}  // namespace
}  // namespace workbench::drawing
