#include "tests/workbench/host/test_options.h"
#include "workbench/profiles/profile_store.h"

#include <hostapi/zorq/profiles.h>

#include <gtest/gtest.h>

namespace workbench {

class ProfileFunctionsTest : public testing::Test {
protected:
    Workbench bench{testOptions()};
};

TEST_F(ProfileFunctionsTest, TheManagerIsTheWorkbenchsStore) {
    EXPECT_EQ(vxProfileManagerPtr(), &bench.profiles());
}

TEST_F(ProfileFunctionsTest, AToldFailureGivesNull) {
    bench.faults().fail("vxProfileManagerPtr", {}, 1);
    EXPECT_EQ(vxProfileManagerPtr(), nullptr);
    EXPECT_NE(vxProfileManagerPtr(), nullptr);
}

}  // namespace workbench
