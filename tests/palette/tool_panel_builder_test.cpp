#include "palette/tool_panel_builder.h"

#include "module/manager.h"
#include "module/module.h"
#include "palette/tool_items.h"
#include "tests/palette/palette_fixture.h"
#include "workbench/base/text.h"
#include "workbench/menu/menu_host.h"
#include "workbench/toolkit/object_states.h"
#include "workbench/toolkit/tool_panel_item_record.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

namespace {

class ToolPanelBuilderTest : public PaletteTest {
protected:
    using PaletteTest::PaletteTest;
    CQrUiToolPanel& toolPanel(CVxDaPanel* panel, std::size_t n) {
        return *bench().toolkit().panels().of(panel).toolPanels.at(n);
    }
    /// Where the first item of a panel's first tool panel begins, in pixels.
    int firstItemLeft(CVxDaPanel* panel) {
        return toolPanel(panel, 0).GetToolPanelItem(0)->GetPosition().x;
    }
    /// Shows the dashboard with the panel of the house alone.
    void raiseOnlyHouse() {
        bench().menu().switchWorkspace("House");
        load();
        dashboardManager()->showDashboard();
    }
    /// The command that toggles a panel.
    UINT commandOf(const std::string& title) {
        for (const workbench::MenuLine& line : popup(menuOfDashboard(), L"Panels")) {
            if (workbench::toUtf8(line.text) == title)
                return line.command;
        }
        return 0;
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

/// An ID of the menu data, and the ID of its item on the panel.
struct RenamedRow {
    const wchar_t* dataId;
    const wchar_t* itemId;
};

class RenamedItemTest : public ToolPanelBuilderTest,
                        public testing::WithParamInterface<RenamedRow> {};

TEST_P(RenamedItemTest, HasItsOwnIdOnThePanelAndThatOfTheDataInTheIndex) {
    itemData(L"MAIN", L"LayerTools", 4).id = GetParam().dataId;
    show();
    ASSERT_NE(item(GetParam().dataId), nullptr);
    EXPECT_EQ(item(GetParam().dataId)->GetID(), GetParam().itemId);
    EXPECT_EQ(panelSet().findToolPanelItems(L"ID_Idle"), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Ids, RenamedItemTest,
                         testing::Values(RenamedRow{L"LineTypeControl", L"Line Type Control"},
                                         RenamedRow{L"linetypecontrol", L"Line Type Control"},
                                         RenamedRow{L"OPTColorControl", L"OPT Color Control"},
                                         RenamedRow{L"optCOLORcontrol", L"OPT Color Control"},
                                         RenamedRow{L"LineWeightControl", L"Line Weight Control"},
                                         RenamedRow{L"LINEWEIGHTCONTROL", L"Line Weight Control"},
                                         RenamedRow{L"PlotStyleControl", L"Plot Style Control"},
                                         RenamedRow{L"plotstylecontrol", L"Plot Style Control"},
                                         RenamedRow{L"LayerControl", L"LayerControl"},
                                         RenamedRow{L"LineTypeControls", L"LineTypeControls"}));

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
    EXPECT_EQ(CWnd::FromHandle(item(L"Foreign")->GetControl())->GetParent(),
              &toolPanel(panel(L"MAIN", L"Draw"), 1));
}

TEST_F(ToolPanelBuilderTest, AnOwnControlStandsOnThePanelAndGetsBroadcasts) {
    show();
    ASSERT_NE(item(L"LINETYPEcontrol"), nullptr);
    const HWND control = item(L"LINETYPEcontrol")->GetControl();
    EXPECT_EQ(panelSet().controlWindows(),
              (std::vector<HWND>{control, item(L"Foreign")->GetControl()}));
    EXPECT_EQ(CWnd::FromHandle(control)->GetParent(), &toolPanel(panel(L"MAIN", L"Draw"), 1));
}

TEST_F(ToolPanelBuilderTest, ToolPanelsAndTheirControlsBeginInThePanelSetsClientArea) {
    load();
    std::vector<CRect> rects;
    CRect client;
    const auto watch = bench().journal().addListener([&](const workbench::JournalRecord& record) {
        if (record.field("name") != workbench::Value("CQrUiProgSliderCtrl::Create"))
            return;
        client = panelSet().GetClientRect();
        for (const HWND window : bench().windows().descendants(panelSet().m_hWnd)) {
            const workbench::Window& found = *bench().windows().find(window);
            if (found.className == "CQrUiToolPanel" && found.rect == client)
                rects.push_back(found.rect);
        }
    });
    dashboardManager()->showDashboard();
    ASSERT_NE(client, CRect());
    EXPECT_GE(rects.size(), 2U) << "that of the control and the one that it stands on";
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

TEST_F(ToolPanelBuilderTest, OneFlyoutTwiceOnALevelIsBuiltTwice) {
    // No flyout leads back to itself here: the second is not inside the first.
    VxToolPanelItemData& again = itemData(L"MAIN", L"TPL_A", 3);
    again.id = L"TPL_Again";
    again.type = 1;
    again.flyoutId = L"TPL_B";
    show();
    EXPECT_EQ(tools(item(L"TPL_A")), (Ids{L"ID_A1", L"ID_A2", L"TPL_Inner", L"TPL_Again"}));
    EXPECT_EQ(tools(item(L"TPL_Inner")), Ids{L"ID_B1"});
    EXPECT_EQ(tools(item(L"TPL_Again")), Ids{L"ID_B1"});
}

TEST_F(ToolPanelBuilderTest, AnInnerFlyoutWithoutDataHasNoToolsAndTheLevelGoesOn) {
    itemData(L"MAIN", L"TPL_A", 2).flyoutId = L"Nowhere";
    show();
    EXPECT_EQ(tools(item(L"TPL_A")), (Ids{L"ID_A1", L"ID_A2", L"TPL_Inner", L"ID_A3"}));
    EXPECT_EQ(tools(item(L"TPL_Inner")), Ids{});
}

TEST_F(ToolPanelBuilderTest, AHoleInTheItemsIsPassedOver) {
    load();
    for (const wchar_t* toolPanel : {L"DrawTools", L"TPL_A"}) {
        auto& items = const_cast<VxToolPanelData&>(*vxedGetToolPanelData(L"MAIN", toolPanel));
        items.insert(items.begin(), nullptr);
    }
    showLoaded();
    EXPECT_EQ(toolPanel(panel(L"MAIN", L"Draw"), 0).GetToolPanelItemCount(), 5);
    EXPECT_EQ(tools(item(L"TPL_A")), (Ids{L"ID_A1", L"ID_A2", L"TPL_Inner", L"ID_A3"}));
}

/// Four levels of flyouts, of another group than the first.
const char* const kDeepMenu = R"({
  "menuGroups": [{"name": "OTHER", "resourceModule": "HouseTools.xmx"}],
  "panels": [{"menuGroup": "OTHER", "id": "P", "title": "P", "toolPanels": ["T"]}],
  "toolPanels": [
    {"menuGroup": "OTHER", "id": "T", "items": [
      {"type": "flyout", "id": "Level1", "flyout": "L1"}]},
    {"menuGroup": "OTHER", "id": "L1", "items": [
      {"type": "flyout", "id": "Level2", "flyout": "L2"}]},
    {"menuGroup": "OTHER", "id": "L2", "items": [
      {"type": "flyout", "id": "Level3", "flyout": "L3"}]},
    {"menuGroup": "OTHER", "id": "L3", "items": [
      {"type": "flyout", "id": "Level4", "flyout": "L4"}, {"type": "button", "id": "Behind"}]},
    {"menuGroup": "OTHER", "id": "L4", "items": [
      {"type": "button", "id": "Deepest", "image": "RCDATA_TOOL_HT_WALL"}]}]
})";

class DeepFlyoutTest : public ToolPanelBuilderTest {
protected:
    DeepFlyoutTest() : ToolPanelBuilderTest(kDeepMenu) {}
};

TEST_F(DeepFlyoutTest, IsBuiltToItsEndWithThePicturesOfItsGroup) {
    show();
    EXPECT_EQ(tools(item(L"Level1")), Ids{L"Level2"});
    EXPECT_EQ(tools(item(L"Level2")), Ids{L"Level3"});
    EXPECT_EQ(tools(item(L"Level3")), (Ids{L"Level4", L"Behind"}));
    EXPECT_EQ(tools(item(L"Level4")), Ids{L"Deepest"});
    EXPECT_EQ(bench().toolkit().pictures().source(item(L"Deepest")->m_record->smallImage),
              "RCDATA_TOOL_HT_WALL");
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

TEST_F(ToolPanelBuilderTest, ToolPanelsAreVisibleChildrenWithTheIndentWhereThePanelHasAnImage) {
    raiseOnlyHouse();
    const int house = toolPanel(panel(L"OTHER", L"Draw"), 0).GetDlgCtrlID();
    EXPECT_EQ(takeLines({"CQrUiToolPanel::Create"}),
              std::vector<std::string>{"CQrUiToolPanel::Create(1342177280, object, " +
                                       std::to_string(house) + ", 2)"});
    panelSet().togglePanel(commandOf("Layers"));
    EXPECT_EQ(takeLines({"CQrUiToolPanel::Create"}),
              std::vector<std::string>{"CQrUiToolPanel::Create(1342177280, object, " +
                                       std::to_string(house + 1) + ", 0)"});
}

}  // namespace
