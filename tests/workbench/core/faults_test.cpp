#include "workbench/core/faults.h"

#include <gtest/gtest.h>

namespace workbench {

TEST(FaultsTest, ACallFailsUntilItIsToldNotTo) {
    Faults faults;
    EXPECT_FALSE(faults.take("vxedSetVar").has_value());
    faults.fail("vxedSetVar");
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(faults.take("vxedSetVar").has_value());
    EXPECT_FALSE(faults.take("vxedGetVar").has_value());
    faults.unfail("vxedSetVar");
    EXPECT_FALSE(faults.take("vxedSetVar").has_value());
}

TEST(FaultsTest, ACountedFaultEndsByItself) {
    Faults faults;
    faults.fail("vxedSetVar", 5001, 2);
    EXPECT_EQ(faults.take("vxedSetVar")->status, 5001);
    EXPECT_EQ(faults.take("vxedSetVar")->status, 5001);
    EXPECT_FALSE(faults.take("vxedSetVar").has_value());
}

TEST(FaultsTest, TheFirstCallsGoWellIfSoAsked) {
    Faults faults;
    faults.fail("vxedSetVar", 5001, 1, 2);
    EXPECT_FALSE(faults.take("vxedSetVar").has_value());
    EXPECT_FALSE(faults.take("vxedSetVar").has_value());
    EXPECT_EQ(faults.untaken(), std::vector<std::string>{"vxedSetVar"});
    EXPECT_EQ(faults.take("vxedSetVar")->status, 5001);
    EXPECT_FALSE(faults.take("vxedSetVar").has_value());
}

TEST(FaultsTest, ALaterFaultReplacesTheEarlier) {
    Faults faults;
    faults.fail("vxedSetVar", 5001, 1);
    faults.fail("vxedSetVar");
    EXPECT_FALSE(faults.take("vxedSetVar")->status.has_value());
    EXPECT_TRUE(faults.take("vxedSetVar").has_value());
}

TEST(FaultsTest, AFaultThatNoCallCameToIsUntaken) {
    Faults faults;
    faults.fail("vxedGetVar");
    faults.fail("vxedSetVar");
    faults.take("vxedSetVar");
    EXPECT_EQ(faults.untaken(), std::vector<std::string>{"vxedGetVar"});
    faults.unfail("vxedGetVar");
    EXPECT_TRUE(faults.untaken().empty());
}

TEST(FaultsTest, ALibraryAndItsSymbolsAreHiddenApart) {
    Faults faults;
    faults.hide("VxTp.qlx", "VxTpShowScheme");
    EXPECT_TRUE(faults.isHidden("VxTp.qlx", "VxTpShowScheme"));
    EXPECT_FALSE(faults.isHidden("VxTp.qlx"));
    faults.hide("VxTp.qlx");
    faults.unhide("VxTp.qlx", "VxTpShowScheme");
    EXPECT_TRUE(faults.isHidden("VxTp.qlx"));
    EXPECT_FALSE(faults.isHidden("VxTp.qlx", "VxTpShowScheme"));
}

}  // namespace workbench
