#include "palette/tool_palettes.h"

#include "tests/palette/palette_fixture.h"
#include "workbench/palettes/tool_palettes.h"

namespace {

class ToolPalettesTest : public PaletteTest {
protected:
    bool isOnScreen() {
        return bench().toolPalettes().window() != nullptr &&
               bench().toolPalettes().window()->isOnScreen();
    }
};

TEST_F(ToolPalettesTest, AreLoadedAndShown) {
    EXPECT_EQ(showToolPalettes(), 1);
    EXPECT_TRUE(isOnScreen());
}

TEST_F(ToolPalettesTest, OnScreenAreLeftAlone) {
    showToolPalettes();
    forget();
    EXPECT_EQ(showToolPalettes(), 1);
    EXPECT_EQ(callCount("vxrxServiceIsRegistered"), 0);
}

TEST_F(ToolPalettesTest, OfALoadedModuleAreShownWithoutLoadingItAgain) {
    showToolPalettes();
    bench().toolPalettes().window()->show(false);
    forget();
    EXPECT_EQ(showToolPalettes(), 1);
    EXPECT_EQ(callCount("vxrxLoadModule"), 0);
    EXPECT_TRUE(isOnScreen());
}

TEST_F(ToolPalettesTest, WithoutAManagerAreNotShown) {
    fail("VxTcUiGetManager");
    EXPECT_EQ(showToolPalettes(), 0);
    fail("VxTcUiGetManager", 2);
    EXPECT_EQ(openToolPaletteGroup(L"Doors"), 0);
}

TEST_F(ToolPalettesTest, OfAModuleThatIsMissingAreNotShown) {
    bench().faults().hide("VxTp.qlx");
    EXPECT_EQ(showToolPalettes(), 0);
    EXPECT_EQ(openToolPaletteGroup(L"Doors"), 0);
    EXPECT_FALSE(isOnScreen());
}

TEST_F(ToolPalettesTest, WithoutTheExportAreNotShown) {
    bench().faults().hide("VxTp.qlx", "VxTpShowScheme");
    EXPECT_EQ(showToolPalettes(), 0);
}

TEST_F(ToolPalettesTest, ThatStayHiddenTurnToAGroupAllTheSame) {
    showToolPalettes();
    bench().toolPalettes().window()->show(false);
    bench().faults().hide("VxTp.qlx", "VxTpShowScheme");
    ASSERT_EQ(showToolPalettes(), 0);
    EXPECT_EQ(openToolPaletteGroup(L"Windows"), 1);
    EXPECT_EQ(bench().toolPalettes().window()->activeGroup(), L"Windows");
    EXPECT_FALSE(isOnScreen());
}

TEST_F(ToolPalettesTest, TurnToAGroupAndAnswerOneForAnUnknownOneToo) {
    EXPECT_EQ(openToolPaletteGroup(L"Windows"), 1);
    EXPECT_EQ(bench().toolPalettes().window()->activeGroup(), L"Windows");
    EXPECT_EQ(openToolPaletteGroup(L"Nowhere"), 1);
    EXPECT_EQ(bench().toolPalettes().window()->activeGroup(), L"Windows");
}

}  // namespace
