#include "palette/item_click.h"

#include "tests/palette/palette_fixture.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/messages.h>
#include <hostapi/qrui18/tool_panel_item.h>

namespace {

using Lines = std::vector<std::string>;

class ItemClickTest : public PaletteTest {
protected:
    /// A click as the toolkit reports it to the panel.
    LRESULT click(CQrUiToolPanelItem* item) {
        return panel(L"MAIN", L"Layers")
            ->SendMessage(WM_QRUI_ITEM_CLICKED, 0, reinterpret_cast<LPARAM>(item));
    }
    /// The only command text that was sent; empty unless it is one.
    std::string onlySent() { return sent().size() == 1 ? sent()[0] : ""; }
};

TEST_F(ItemClickTest, NoItemAnswersZero) {
    show();
    EXPECT_EQ(click(nullptr), 0);
}

/// A type that takes no click.
class DeadTypeTest : public ItemClickTest, public testing::WithParamInterface<int> {};

TEST_P(DeadTypeTest, DoesNothing) {
    show();
    item(L"ID_Line")->SetType(GetParam());
    forget();
    EXPECT_EQ(click(item(L"ID_Line")), 1);
    EXPECT_TRUE(sent().empty());
    EXPECT_EQ(takeLines(), Lines{});
}

INSTANTIATE_TEST_SUITE_P(SeparatorAndRowBreak, DeadTypeTest, testing::Values(3, 4));

TEST_F(ItemClickTest, AMacroIsSentAfterTheDrawingViewGotTheFocus) {
    show();
    EXPECT_EQ(click(item(L"ID_Line")), 1);
    EXPECT_NE(onlySent().find("\"_line\\n\""), std::string::npos);
    EXPECT_NE(onlySent().find("\"menu\""), std::string::npos);
    EXPECT_EQ(bench().windows().focus(), bench().toolkit().frame().drawingView().m_hWnd);
}

TEST_F(ItemClickTest, AMacroIsSentToTheActiveDocumentByOneCallBehindTheFocus) {
    show();
    click(item(L"ID_Line"));
    EXPECT_EQ(takeLines({"vxedGetZorqDwgView", "CWnd::SetFocus",
                         "VxApDocManager::mdiActiveDocument", "vxedSendMenuStringToExecute"}),
              (Lines{"vxedGetZorqDwgView()", "CWnd::SetFocus(\"DrawingView\")",
                     "VxApDocManager::mdiActiveDocument()",
                     "vxedSendMenuStringToExecute(object, \"_line\n\", 1)"}));
}

TEST_F(ItemClickTest, WithoutADrawingViewTheMacroIsSentAllTheSame) {
    show();
    const HWND focus = bench().windows().focus();
    fail("vxedGetZorqDwgView");
    EXPECT_EQ(click(item(L"ID_Line")), 1);
    EXPECT_NE(onlySent().find("\"_line\\n\""), std::string::npos);
    EXPECT_EQ(bench().windows().focus(), focus);
}

TEST_F(ItemClickTest, AFlyoutActsAsItsCurrentTool) {
    show();
    CQrUiToolPanelItem* flyout = item(L"TPL_A");
    ASSERT_NE(flyout->SetCurrentFlyoutTool(item(L"ID_A2")), 0);
    EXPECT_EQ(click(flyout), 1);
    EXPECT_NE(onlySent().find("\"_a2\\n\""), std::string::npos);
}

TEST_F(ItemClickTest, AFlyoutWithoutACurrentToolAnswersZero) {
    show();
    CQrUiToolPanelItem flyout(nullptr);
    flyout.SetType(kItemFlyout);
    EXPECT_EQ(click(&flyout), 0);
}

TEST_F(ItemClickTest, AnItemWithoutMenuDataAnswersZero) {
    show();
    CQrUiToolPanelItem plain(nullptr);
    EXPECT_EQ(click(&plain), 0);
}

TEST_F(ItemClickTest, AnItemWithNeitherModuleNorMacroDoesNothing) {
    show();
    EXPECT_EQ(click(item(L"ID_Idle")), 1);
    EXPECT_TRUE(sent().empty());
    EXPECT_EQ(takeLines(), Lines{});
}

TEST_F(ItemClickTest, AToolOfThisModuleDoesNotRunItsMacro) {
    show();
    EXPECT_EQ(click(item(L"ID_Own")), 1);
    EXPECT_TRUE(sent().empty());
    EXPECT_EQ(callCount("vxrxLoadModule"), 0);
}

TEST_F(ItemClickTest, AToolOfThisModuleGoesToTheControlManager) {
    show();
    itemData(L"MAIN", L"LayerTools", 3).id = L"ID_DefaultLighting";
    item(L"ID_Own")->SetID(L"ID_DefaultLighting");
    EXPECT_EQ(click(item(L"ID_Own")), 1);
    EXPECT_EQ(takeLines({"do_cmd"}).size(), 1U) << "the tool's own command";
}

TEST_F(ItemClickTest, AFlyoutWithACurrentToolOfAnotherModuleGivesItThatTool) {
    VxToolPanelItemData& tool = itemData(L"MAIN", L"TPL_A", 1);
    tool.id = L"ID_ExampleCount";
    tool.module = L"VxExampleTools.qlx";
    show();
    CQrUiToolPanelItem* flyout = item(L"TPL_A");
    CQrUiToolPanelItem* inside = (*flyout->GetFlyoutItems())[1];
    ASSERT_NE(flyout->SetCurrentFlyoutTool(inside), 0);
    EXPECT_EQ(click(flyout), 1);
    EXPECT_EQ(inside->GetName(), L"1 click");
    EXPECT_TRUE(sent().empty());
}

TEST_F(ItemClickTest, AForeignModuleGetsTheItem) {
    show();
    EXPECT_EQ(click(item(L"ID_ExampleCount")), 1);
    EXPECT_EQ(item(L"ID_ExampleCount")->GetName(), L"1 click");
}

TEST_F(ItemClickTest, AForeignModuleWithoutTheExportIgnoresTheClick) {
    show();
    bench().faults().hide("VxExampleTools.qlx", "VxDaButtonClicked");
    EXPECT_EQ(click(item(L"ID_ExampleCount")), 1);
    EXPECT_EQ(item(L"ID_ExampleCount")->GetName().find(L"click"), VxString::npos);
}

TEST_F(ItemClickTest, AModuleThatCannotBeLoadedEndsTheClick) {
    show();
    EXPECT_EQ(click(item(L"ID_Lost")), 1);
    EXPECT_TRUE(sent().empty());
    EXPECT_EQ(takeLines(), (Lines{"GetModuleHandle(\"Gone.qlx\")",
                                  "vxrxLoadModule(\"Gone.qlx\", false, true)"}));
}

}  // namespace
