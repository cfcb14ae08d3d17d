#include "workbench/drawing/database/status.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(Status, SuccessIsZero) {
    EXPECT_EQ(static_cast<int>(Status::Ok), 0);
}

TEST(Status, NamesAreThoseOfTheValues) {
    EXPECT_STREQ(statusName(Status::Ok), "ok");
    EXPECT_STREQ(statusName(Status::WasOpenForWrite), "wasOpenForWrite");
    EXPECT_STREQ(statusName(Status::GroupIsOpen), "groupIsOpen");
    EXPECT_STREQ(statusName(Status::NotLocked), "notLocked");
    EXPECT_STREQ(statusName(static_cast<Status>(-1)), "unknown");
}

}  // namespace
}  // namespace workbench::drawing
