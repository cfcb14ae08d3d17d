#include "workbench/adapters/host_values.h"

#include <gtest/gtest.h>

namespace workbench {

TEST(HostValuesTest, IdsGoThereAndBack) {
    const drawing::ObjectId id(3, 0xFFFFFFFFU);
    EXPECT_EQ(fromHostId(toHostId(id)), id);
    EXPECT_TRUE(toHostId(drawing::ObjectId()).isNull());
}

TEST(HostValuesTest, ModesAndStatusesAreTheHosts) {
    EXPECT_EQ(openModeOf(VxDbOpenMode::kForRead), drawing::OpenMode::Read);
    EXPECT_EQ(openModeOf(VxDbOpenMode::kForWrite), drawing::OpenMode::Write);
    EXPECT_EQ(toHostStatus(drawing::Status::Ok), Zorq::eOk);
    EXPECT_NE(toHostStatus(drawing::Status::UnknownId), Zorq::eOk);
}

}  // namespace workbench
