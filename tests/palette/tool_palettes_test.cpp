#include "palette/tool_palettes.h"

#include "tests/palette/palette_fixture.h"
#include "workbench/loader/module_loader.h"
#include "workbench/palettes/tool_palettes.h"

namespace {

using Lines = std::vector<std::string>;

class ToolPalettesTest : public PaletteTest {
protected:
    /// The host calls on the road to the palettes since the journal was forgotten.
    Lines takeSteps() {
        return takeLines({"VxTcUiGetManager", "CVxTcUiManager::IsToolPaletteWindowVisible",
                          "vxrxServiceIsRegistered", "vxrxLoadModule",
                          "VxRxDynamicLinker::getSymbolAddress"});
    }
    bool isOnScreen() {
        return bench().toolPalettes().window() != nullptr &&
               bench().toolPalettes().window()->isOnScreen();
    }
};

TEST_F(ToolPalettesTest, AreLoadedWithoutAWordAndAsACommandAndShown) {
    forget();
    EXPECT_EQ(showToolPalettes(), 1);
    EXPECT_TRUE(isOnScreen());
    EXPECT_EQ(takeSteps(),
              (Lines{"VxTcUiGetManager()", "CVxTcUiManager::IsToolPaletteWindowVisible()",
                     "vxrxServiceIsRegistered(\"ZorqToolPalette\")",
                     "vxrxLoadModule(\"VxTp.qlx\", false, true)",
                     "vxrxServiceIsRegistered(\"ZorqToolPalette\")",
                     "VxRxDynamicLinker::getSymbolAddress(\"ZorqToolPalette\", "
                     "\"VxTpShowScheme\")"}));
}

TEST_F(ToolPalettesTest, OnScreenAreLeftAlone) {
    showToolPalettes();
    forget();
    EXPECT_EQ(showToolPalettes(), 1);
    EXPECT_EQ(takeLines(),
              (Lines{"VxTcUiGetManager()", "CVxTcUiManager::IsToolPaletteWindowVisible()"}));
}

TEST_F(ToolPalettesTest, OfALoadedModuleAreShownWithoutLoadingItAgain) {
    showToolPalettes();
    bench().toolPalettes().window()->show(false);
    forget();
    EXPECT_EQ(showToolPalettes(), 1);
    EXPECT_TRUE(isOnScreen());
    EXPECT_EQ(takeSteps(),
              (Lines{"VxTcUiGetManager()", "CVxTcUiManager::IsToolPaletteWindowVisible()",
                     "vxrxServiceIsRegistered(\"ZorqToolPalette\")",
                     "VxRxDynamicLinker::getSymbolAddress(\"ZorqToolPalette\", "
                     "\"VxTpShowScheme\")"}));
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

TEST_F(ToolPalettesTest, WithoutALinkerAreNotShown) {
    showToolPalettes();
    bench().toolPalettes().window()->show(false);
    bench().modules().registry().remove(L"DynamicLinker");
    EXPECT_EQ(showToolPalettes(), 0);
    EXPECT_FALSE(isOnScreen());
}

TEST_F(ToolPalettesTest, WithoutAWindowTurnToNoGroup) {
    fail("CVxTcUiManager::GetToolPaletteWindow");
    EXPECT_EQ(openToolPaletteGroup(L"Windows"), 0);
    EXPECT_NE(bench().toolPalettes().window()->activeGroup(), L"Windows");
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
