#include "nav3d/force_update.h"

#include <hostapi/vxdashboard.h>

#include <gtest/gtest.h>

// Host modules find it by its name.
VXDA_EXPORT void setForce3DNavUpdate(bool force);

namespace {

TEST(ForceUpdateTest, ExportedFunctionStoresTheFlag) {
    setForce3DNavUpdate(true);
    EXPECT_TRUE(isNavUpdateForced());
    setForce3DNavUpdate(false);
    EXPECT_FALSE(isNavUpdateForced());
}

}  // namespace
