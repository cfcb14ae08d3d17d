#include "tests/workbench/host/test_options.h"
#include "workbench/palettes/tool_palettes.h"

#include <hostapi/vxtcui.h>

#include <gtest/gtest.h>

namespace workbench {

class NoPalettesFunctionsTest : public testing::Test {
protected:
    Workbench bench{testOptions()};
};

class PalettesFunctionsTest : public testing::Test {
protected:
    static constexpr const wchar_t* kScheme = L"ToolPaletteScheme";

    Workbench bench{testOptions(PROJECT_SOURCE_ROOT "/examples/panels.json")};
};

TEST_F(NoPalettesFunctionsTest, WithoutASchemeThereIsNoManager) {
    CStringArray groups;
    EXPECT_EQ(VxTcUiGetManager(), nullptr);
    EXPECT_EQ(VxTcUiGetToolPaletteGroups(L"ToolPaletteScheme", groups), 0);
}

TEST_F(PalettesFunctionsTest, TheGroupsComeInTheirOrderBehindWhatIsThere) {
    CStringArray groups{L"before"};
    EXPECT_NE(VxTcUiGetToolPaletteGroups(kScheme, groups), 0);
    ASSERT_GE(groups.size(), 3U);
    EXPECT_EQ(groups[0], L"before");
    EXPECT_EQ(groups[1], L"All Palettes");
    EXPECT_EQ(VxTcUiGetToolPaletteGroups(L"Nothing", groups), 0);
}

TEST_F(PalettesFunctionsTest, TheManagerIsThereBeforeTheWindow) {
    ASSERT_EQ(VxTcUiGetManager(), &bench.toolPalettes());
    EXPECT_EQ(VxTcUiGetManager()->GetToolPaletteWindow(), nullptr);
}

TEST_F(PalettesFunctionsTest, TheCallsCanBeToldToFail) {
    CStringArray groups;
    bench.faults().fail("VxTcUiGetManager", {}, 1);
    EXPECT_EQ(VxTcUiGetManager(), nullptr);
    bench.faults().fail("VxTcUiGetToolPaletteGroups", {}, 1);
    EXPECT_EQ(VxTcUiGetToolPaletteGroups(kScheme, groups), 0);
    EXPECT_TRUE(groups.empty());
}

}  // namespace workbench
