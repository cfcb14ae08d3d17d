#include "workbench/palettes/tool_palettes.h"

#include "tests/workbench/host/test_options.h"
#include "workbench/host/workbench.h"

#include <gtest/gtest.h>

namespace workbench {

class ToolPalettesTest : public testing::Test {
protected:
    ToolPalettes& palettes() { return bench.toolPalettes(); }

    Workbench bench{testOptions(PROJECT_SOURCE_ROOT "/examples/panels.json")};
};

class NoToolPalettesTest : public testing::Test {
protected:
    Workbench bench{testOptions()};
};

TEST_F(ToolPalettesTest, TheWindowComesWithTheFirstShow) {
    CVxTcUiManager* manager = VxTcUiGetManager();
    ASSERT_NE(manager, nullptr);
    EXPECT_EQ(manager->GetToolPaletteWindow(), nullptr);
    EXPECT_EQ(manager->IsToolPaletteWindowVisible(), 0);
    EXPECT_TRUE(palettes().showScheme("ToolPaletteScheme", false));
    EXPECT_EQ(manager->GetToolPaletteWindow(), nullptr);

    EXPECT_TRUE(palettes().showScheme("ToolPaletteScheme", true));
    EXPECT_NE(manager->GetToolPaletteWindow(), nullptr);
    EXPECT_NE(manager->IsToolPaletteWindowVisible(), 0);
    EXPECT_EQ(palettes().window()->activeGroup(), L"All Palettes");

    EXPECT_TRUE(palettes().showScheme("ToolPaletteScheme", false));
    EXPECT_EQ(manager->IsToolPaletteWindowVisible(), 0);
    EXPECT_FALSE(palettes().showScheme("Nothing", true));
}

TEST_F(ToolPalettesTest, TheyAreInstalledIfTheMenuHasAScheme) {
    EXPECT_TRUE(palettes().isInstalled());
    EXPECT_TRUE(palettes().groups("ToolPaletteScheme"));
    EXPECT_FALSE(palettes().groups("Nothing"));
}

TEST_F(NoToolPalettesTest, WithoutASchemeTheyAreNot) {
    EXPECT_FALSE(bench.toolPalettes().isInstalled());
    EXPECT_FALSE(bench.toolPalettes().showScheme("ToolPaletteScheme", true));
}

TEST_F(ToolPalettesTest, ToldFailuresHideTheWindow) {
    palettes().showScheme("ToolPaletteScheme", true);
    bench.faults().fail("CVxTcUiManager::GetToolPaletteWindow", {}, 1);
    EXPECT_EQ(palettes().GetToolPaletteWindow(), nullptr);
    bench.faults().fail("CVxTcUiManager::IsToolPaletteWindowVisible", {}, 1);
    EXPECT_EQ(palettes().IsToolPaletteWindowVisible(), 0);
    EXPECT_NE(palettes().IsToolPaletteWindowVisible(), 0);
}

}  // namespace workbench
