#include "workbench/drawing/records/sun.h"

#include "workbench/drawing/database/database.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(SunRecord, PartsOfTheDateAreReadAndChangedAlone) {
    const Database db;
    Record<Sun> sun;
    sun.setProperty("date", "2026-03-04T05:06:07.008", db);
    sun.setProperty("hour", 17, db);
    EXPECT_EQ(sun.property("month", db), Value(3));
    EXPECT_EQ(sun.property("date", db), Value("2026-03-04T17:06:07.008"));
    EXPECT_THROW(sun.setProperty("hour", 24, db), ValueError);
}

TEST(SunRecord, FilesHoldTheDateOnce) {
    const Record<Sun> sun;
    for (const std::string_view name : sun.propertyNames()) {
        EXPECT_NE(name, "hour");
    }
    EXPECT_EQ(sun.findProperty("HOUR"), "hour");
}

}  // namespace
}  // namespace workbench::drawing
