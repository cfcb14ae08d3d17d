#include "workbench/drawing/database/status.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(Status, SuccessIsZero) {
    EXPECT_EQ(static_cast<int>(Status::ok), 0);
}

TEST(Status, NamesAreThoseOfTheValues) {
    EXPECT_STREQ(statusName(Status::ok), "ok");
    EXPECT_STREQ(statusName(Status::wasOpenForWrite), "wasOpenForWrite");
    EXPECT_STREQ(statusName(Status::groupIsOpen), "groupIsOpen");
    EXPECT_STREQ(statusName(static_cast<Status>(-1)), "unknown");
}

}  // namespace
}  // namespace workbench::drawing
