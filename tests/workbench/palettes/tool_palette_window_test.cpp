#include "workbench/palettes/tool_palette_window.h"

#include "tests/workbench/host/test_options.h"

#include <gtest/gtest.h>

namespace workbench {

class ToolPaletteWindowTest : public testing::Test {
protected:
    ToolPaletteWindowTest() { window.setGroups({L"All", L"Garden"}); }

    Workbench bench{testOptions()};
    ToolPaletteWindow window{bench.windows()};
};

TEST_F(ToolPaletteWindowTest, StartsHiddenWithTheFirstGroup) {
    EXPECT_FALSE(window.isOnScreen());
    EXPECT_EQ(window.activeGroup(), L"All");
    window.show(true);
    EXPECT_TRUE(window.isOnScreen());
}

TEST_F(ToolPaletteWindowTest, OnlyAKnownGroupBecomesActive) {
    EXPECT_NE(window.SetActivePaletteGroup(L"Garden"), 0);
    EXPECT_EQ(window.activeGroup(), L"Garden");
    EXPECT_EQ(window.SetActivePaletteGroup(L"garden"), 0);
    EXPECT_EQ(window.activeGroup(), L"Garden");
}

TEST_F(ToolPaletteWindowTest, NewGroupsKeepTheActiveOneIfTheyHaveIt) {
    window.SetActivePaletteGroup(L"Garden");
    window.setGroups({L"Rooms", L"Garden"});
    EXPECT_EQ(window.activeGroup(), L"Garden");
    window.setGroups({L"Rooms"});
    EXPECT_EQ(window.activeGroup(), L"Rooms");
    window.setGroups({});
    EXPECT_EQ(window.activeGroup(), L"");
}

TEST_F(ToolPaletteWindowTest, TheWindowsTextIsItsGroup) {
    window.SetActivePaletteGroup(L"Garden");
    const HWND handle = bench.windows().findByName("ToolPalettes");
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(bench.windows().find(handle)->text, L"Garden");
}

TEST_F(ToolPaletteWindowTest, AToldFailureKeepsTheGroup) {
    bench.faults().fail("CVxTcUiToolPaletteSet::SetActivePaletteGroup", {}, 1);
    EXPECT_EQ(window.SetActivePaletteGroup(L"Garden"), 0);
    EXPECT_EQ(window.activeGroup(), L"All");
}

}  // namespace workbench
