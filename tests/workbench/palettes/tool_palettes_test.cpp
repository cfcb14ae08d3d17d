#include "workbench/palettes/tool_palettes.h"

#include "workbench/core/workbench.h"
#include "workbench/loader/module_loader.h"

#include "tests/workbench/loader/test_options.h"

#include <gtest/gtest.h>

namespace workbench {

class ToolPalettesTest : public testing::Test {
protected:
    static constexpr const wchar_t* kScheme = L"ToolPaletteScheme";

    ToolPalettes& palettes() { return bench.toolPalettes(); }

    Workbench bench{testOptions(PROJECT_SOURCE_ROOT "/examples/panels.json")};
};

class NoToolPalettesTest : public testing::Test {
protected:
    Workbench bench{testOptions()};
};

TEST_F(NoToolPalettesTest, WithoutASchemeThereIsNoManager) {
    CStringArray groups;
    EXPECT_EQ(VxTcUiGetManager(), nullptr);
    EXPECT_EQ(VxTcUiGetToolPaletteGroups(L"ToolPaletteScheme", groups), 0);
}

TEST_F(ToolPalettesTest, TheGroupsComeInTheirOrderBehindWhatIsThere) {
    CStringArray groups{L"before"};
    EXPECT_NE(VxTcUiGetToolPaletteGroups(kScheme, groups), 0);
    ASSERT_GE(groups.size(), 3U);
    EXPECT_EQ(groups[0], L"before");
    EXPECT_EQ(groups[1], L"All Palettes");
    EXPECT_EQ(VxTcUiGetToolPaletteGroups(L"Nothing", groups), 0);
}

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

TEST_F(ToolPalettesTest, OnlyAKnownGroupBecomesActive) {
    palettes().showScheme("ToolPaletteScheme", true);
    CVxTcUiToolPaletteSet* window = VxTcUiGetManager()->GetToolPaletteWindow();
    EXPECT_NE(window->SetActivePaletteGroup(L"Garden"), 0);
    EXPECT_EQ(palettes().window()->activeGroup(), L"Garden");
    EXPECT_EQ(window->SetActivePaletteGroup(L"garden"), 0);
    EXPECT_EQ(palettes().window()->activeGroup(), L"Garden");
}

TEST_F(ToolPalettesTest, ShowingAgainKeepsTheGroup) {
    palettes().showScheme("ToolPaletteScheme", true);
    palettes().window()->SetActivePaletteGroup(L"Garden");
    palettes().showScheme("ToolPaletteScheme", true);
    EXPECT_EQ(palettes().window()->activeGroup(), L"Garden");
}

TEST_F(ToolPalettesTest, TheModuleShowsThemByItsSymbol) {
    ASSERT_TRUE(vxrxLoadModule(L"VxTp.qlx", false, true));
    const auto showScheme = reinterpret_cast<VxTpShowSchemeFn>(bench.modules().libraries().symbol(
        bench.modules().libraries().find(L"VxTp.qlx"), "VxTpShowScheme"));
    ASSERT_NE(showScheme, nullptr);
    EXPECT_EQ(showScheme(kScheme, 1), 1);
    EXPECT_NE(VxTcUiGetManager()->IsToolPaletteWindowVisible(), 0);
    EXPECT_EQ(showScheme(kScheme, 0), 1);
    EXPECT_EQ(VxTcUiGetManager()->IsToolPaletteWindowVisible(), 0);
    EXPECT_EQ(showScheme(L"Nothing", 1), 0);
    EXPECT_EQ(showScheme(nullptr, 1), 0);
}

TEST_F(ToolPalettesTest, TheCallsCanBeToldToFail) {
    palettes().showScheme("ToolPaletteScheme", true);
    CVxTcUiManager* manager = VxTcUiGetManager();
    bench.faults().fail("VxTcUiGetManager", {}, 1);
    EXPECT_EQ(VxTcUiGetManager(), nullptr);
    bench.faults().fail("CVxTcUiManager::GetToolPaletteWindow", {}, 1);
    EXPECT_EQ(manager->GetToolPaletteWindow(), nullptr);
    bench.faults().fail("CVxTcUiToolPaletteSet::SetActivePaletteGroup", {}, 1);
    EXPECT_EQ(manager->GetToolPaletteWindow()->SetActivePaletteGroup(L"Garden"), 0);
}

}  // namespace workbench
