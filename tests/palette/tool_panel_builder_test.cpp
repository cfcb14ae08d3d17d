#include "palette/tool_panel_builder.h"

#include "palette/tool_items.h"

#include "tests/palette/palette_fixture.h"
#include "workbench/toolkit/object_states.h"
#include "workbench/toolkit/toolkit.h"

namespace {

class ToolPanelBuilderTest : public PaletteTest {
protected:
    CQrUiToolPanel& toolPanel(CVxDaPanel* panel, std::size_t n) {
        return *bench().toolkit().panels().of(panel).toolPanels.at(n);
    }
    /// Where the first item of a panel's first tool panel begins, in pixels.
    int firstItemLeft(CVxDaPanel* panel) {
        return toolPanel(panel, 0).GetToolPanelItem(0)->GetPosition().x;
    }
    /// The IDs in a flyout, in order.
    static std::vector<VxString> tools(const CQrUiToolPanelItem* flyout) {
        std::vector<VxString> ids;
        if (flyout == nullptr || flyout->GetFlyoutItems() == nullptr)
            return ids;
        for (const CQrUiToolPanelItem* tool : *flyout->GetFlyoutItems()) {
            ids.push_back(tool->GetID());
        }
        return ids;
    }
};

using Ids = std::vector<VxString>;

TEST_F(ToolPanelBuilderTest, ItemsStandInTheirOrderWithTheirTypes) {
    show();
    const CQrUiToolPanel& tools = toolPanel(panel(L"MAIN", L"Draw"), 0);
    std::vector<int> types;
    for (int i = 0; i < tools.GetToolPanelItemCount(); ++i) {
        types.push_back(tools.GetToolPanelItem(i)->GetType());
    }
    EXPECT_EQ(types, (std::vector<int>{0, 3, 1, 4, 1}));
}

TEST_F(ToolPanelBuilderTest, TheHostsControlsGetTheirOwnIdsOnThePanel) {
    show();
    // The index goes on using the ID of the menu data.
    ASSERT_NE(item(L"LINETYPEcontrol"), nullptr);
    EXPECT_EQ(item(L"LINETYPEcontrol")->GetID(), L"Line Type Control");
    EXPECT_EQ(item(L"Line Type Control"), nullptr);
}

TEST_F(ToolPanelBuilderTest, AControlThatCannotBeMadeDropsJustItsItem) {
    show();
    EXPECT_EQ(toolPanel(panel(L"MAIN", L"Draw"), 1).GetToolPanelItemCount(), 2);
    ASSERT_NE(panelSet().findToolPanelItems(L"Broken"), nullptr);
    EXPECT_TRUE(panelSet().findToolPanelItems(L"Broken")->empty());
}

TEST_F(ToolPanelBuilderTest, AControlOfAModuleThatCannotBeLoadedIsLeftOut) {
    show();
    EXPECT_EQ(item(L"Lost"), nullptr);
}

TEST_F(ToolPanelBuilderTest, AControlOfAnotherModuleStandsOnThePanelAndGetsBroadcasts) {
    show();
    ASSERT_NE(item(L"Foreign"), nullptr);
    EXPECT_EQ(panelSet().controlWindows().at(1), item(L"Foreign")->GetControl());
}

TEST_F(ToolPanelBuilderTest, AModuleWithoutTheExportMakesNoControl) {
    bench().faults().hide("VxExampleTools.qlx", "VxDaGetCustomControl");
    show();
    EXPECT_EQ(item(L"Foreign"), nullptr);
}

TEST_F(ToolPanelBuilderTest, AnEmptyControlNameMakesNoControl) {
    itemData(L"MAIN", L"DrawControls", 0).controlName.clear();
    show();
    EXPECT_EQ(item(L"LINETYPEcontrol"), nullptr);
}

TEST_F(ToolPanelBuilderTest, FlyoutsAreBuiltToAnyDepth) {
    show();
    EXPECT_EQ(tools(item(L"TPL_A")), (Ids{L"ID_A1", L"ID_A2", L"TPL_Inner", L"ID_A3"}));
    EXPECT_EQ(tools(item(L"TPL_Inner")), Ids{L"ID_B1"});
}

TEST_F(ToolPanelBuilderTest, OnlyToolsOfAFlyoutAreMarkedInTheMenuData) {
    show();
    EXPECT_EQ(itemData(L"MAIN", L"DrawTools", 0).flags, 0U);
    EXPECT_EQ(itemData(L"MAIN", L"TPL_A", 0).flags, 8U);
    EXPECT_EQ(itemData(L"MAIN", L"TPL_B", 0).flags, 8U);
}

TEST_F(ToolPanelBuilderTest, AFlyoutThatContainsItselfStopsWithAPartialFlyout) {
    itemData(L"MAIN", L"TPL_A", 2).flyoutId = L"TPL_A";
    show();
    // The level that leads back ends there; the tool behind it is not built.
    EXPECT_EQ(tools(item(L"TPL_A")), (Ids{L"ID_A1", L"ID_A2", L"TPL_Inner"}));
    EXPECT_EQ(tools(item(L"TPL_Inner")), Ids{});
}

TEST_F(ToolPanelBuilderTest, AFlyoutThatLeadsBackToAnInnerOneStopsThere) {
    VxToolPanelItemData& inner = itemData(L"MAIN", L"TPL_B", 0);
    inner.type = 1;
    inner.flyoutId = L"TPL_B";
    show();
    EXPECT_EQ(tools(item(L"TPL_A")), (Ids{L"ID_A1", L"ID_A2", L"TPL_Inner", L"ID_A3"}));
    EXPECT_EQ(tools(item(L"TPL_Inner")), Ids{L"ID_B1"});
}

TEST_F(ToolPanelBuilderTest, AFlyoutWithoutDataHasNoTools) {
    itemData(L"MAIN", L"DrawTools", 2).flyoutId = L"Nowhere";
    show();
    EXPECT_EQ(tools(item(L"TPL_A")), Ids{});
}

TEST_F(ToolPanelBuilderTest, AnIdHiddenBeforeThePanelIsBuiltIsHonoured) {
    load();
    EXPECT_EQ(setItemsHidden({L"ID_Line"}, true), 1);
    showLoaded();
    EXPECT_NE(item(L"ID_Line", 0)->GetState() & 32U, 0U);
    EXPECT_NE(item(L"ID_Line", 1)->GetState() & 32U, 0U);
    EXPECT_EQ(item(L"ID_Idle")->GetState() & 32U, 0U);
}

TEST_F(ToolPanelBuilderTest, AHostsControlNameInsideAFlyoutStaysTheToolsId) {
    itemData(L"MAIN", L"TPL_B", 0).id = L"LineTypeControl";
    show();
    EXPECT_EQ(tools(item(L"TPL_Own")), Ids{L"LineTypeControl"});
    EXPECT_EQ(tools(item(L"TPL_Inner")), Ids{L"LineTypeControl"});
}

TEST_F(ToolPanelBuilderTest, AnIdHiddenBeforeThePanelIsBuiltHidesNoToolOfAFlyout) {
    load();
    EXPECT_EQ(setItemsHidden({L"ID_A1", L"TPL_A"}, true), 1);
    showLoaded();
    EXPECT_NE(item(L"TPL_A")->GetState() & 32U, 0U);
    ASSERT_NE(item(L"ID_A1"), nullptr);
    EXPECT_EQ(item(L"ID_A1")->GetState() & 32U, 0U);
}

TEST_F(ToolPanelBuilderTest, OnlyBelowAPanelImageAreTheItemsIndented) {
    show();
    EXPECT_GT(firstItemLeft(panel(L"MAIN", L"Draw")), 0);
    EXPECT_EQ(firstItemLeft(panel(L"MAIN", L"Layers")), 0);
}

TEST_F(ToolPanelBuilderTest, AToolPanelThatCannotBeMadeIsLeftOut) {
    fail("CQrUiToolPanel::Create");
    show();
    EXPECT_EQ(item(L"ID_Idle"), nullptr);
    EXPECT_NE(item(L"TPL_A"), nullptr);
}

TEST_F(ToolPanelBuilderTest, ToolPanelsHaveWindowIdsOfTheirOwn) {
    show();
    const int first = toolPanel(panel(L"MAIN", L"Layers"), 0).GetDlgCtrlID();
    EXPECT_EQ(toolPanel(panel(L"MAIN", L"Draw"), 0).GetDlgCtrlID(), first + 1);
    EXPECT_EQ(toolPanel(panel(L"MAIN", L"Draw"), 1).GetDlgCtrlID(), first + 2);
}

}  // namespace
