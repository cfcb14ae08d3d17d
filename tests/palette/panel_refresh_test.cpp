#include "tests/palette/palette_fixture.h"
#include "workbench/menu/menu_host.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/messages.h>

namespace {

using Names = std::vector<std::string>;

class PanelRefreshTest : public PaletteTest {
protected:
    bool isFlagRaised() { return bench().menu().workspaces().panelRefreshFromWorkspace(); }
    void raiseFlag() { bench().menu().workspaces().setPanelRefreshFromWorkspace(true); }
};

TEST_F(PanelRefreshTest, WithoutSavedStateAllPanelsAreShownThoseOfTheWorkspaceFirst) {
    show();
    EXPECT_EQ(shown(), (Names{"MAIN/Layers", "MAIN/Draw", "OTHER/Draw", "MAIN/Spare"}));
}

TEST_F(PanelRefreshTest, WithTheHostsFlagOnlyTheWorkspacesPanelsEndUpVisible) {
    raiseFlag();
    show();
    EXPECT_EQ(shown(), (Names{"MAIN/Layers", "MAIN/Draw"}));
    EXPECT_FALSE(isFlagRaised());
}

TEST_F(PanelRefreshTest, ASwitchOfTheWorkspaceHidesItsPredecessorsPanels) {
    show();
    bench().menu().switchWorkspace("House");
    panelSet().setVisiblePanels({{L"Draw", L"OTHER"}});
    EXPECT_EQ(shown(), (Names{"OTHER/Draw"}));
}

TEST_F(PanelRefreshTest, WithoutTheFlagPanelsOnShowEndUpHiddenInTheirOrder) {
    show();
    EXPECT_EQ(panelSet().refreshPanels(0), 1);
    EXPECT_EQ(shown(), Names{});
    EXPECT_EQ(panelSet().GetPanelCount(), 0);
    const auto lines = popup(menuOfDashboard(), L"Panels");
    EXPECT_EQ(labels(lines), (Names{"Layers", "Drawing", "House", "Spare"}));
}

TEST_F(PanelRefreshTest, AnUnknownPanelInTheListIsIgnored) {
    show();
    raiseFlag();
    panelSet().setVisiblePanels({{L"Nowhere", L"MAIN"}, {L"Spare", L"MAIN"}, {L"draw", L"MAIN"}});
    EXPECT_EQ(shown(), (Names{"MAIN/Spare"}));
    const auto lines = popup(menuOfDashboard(), L"Panels");
    EXPECT_EQ(labels(lines), (Names{"*Spare", "Layers", "Drawing", "House"}));
}

TEST_F(PanelRefreshTest, APanelNamedTwiceIsPlacedOnce) {
    show();
    raiseFlag();
    panelSet().setVisiblePanels({{L"Spare", L"MAIN"}, {L"Spare", L"MAIN"}});
    EXPECT_EQ(shown(), (Names{"MAIN/Spare"}));
}

TEST_F(PanelRefreshTest, AHiddenPanelKeepsItsWindowAndItsItems) {
    show();
    const HWND window = panel(L"MAIN", L"Layers")->m_hWnd;
    const CQrUiToolPanelItem* before = item(L"ID_Idle");
    panelSet().togglePanel(53500);
    EXPECT_EQ(shown(), (Names{"MAIN/Draw", "OTHER/Draw", "MAIN/Spare"}));
    EXPECT_TRUE(IsWindow(window));
    panelSet().togglePanel(53500);
    EXPECT_EQ(shown(), (Names{"MAIN/Layers", "MAIN/Draw", "OTHER/Draw", "MAIN/Spare"}));
    EXPECT_EQ(panel(L"MAIN", L"Layers")->m_hWnd, window);
    EXPECT_EQ(item(L"ID_Idle"), before);
}

TEST_F(PanelRefreshTest, APanelIsMadeWhenItIsFirstShown) {
    raiseFlag();
    show();
    EXPECT_EQ(panel(L"MAIN", L"Spare"), nullptr);
    panelSet().togglePanel(53503);
    EXPECT_NE(panel(L"MAIN", L"Spare"), nullptr);
    EXPECT_EQ(shown(), (Names{"MAIN/Layers", "MAIN/Draw", "MAIN/Spare"}));
}

TEST_F(PanelRefreshTest, ACommandBeyondTheLastPanelDoesNothing) {
    show();
    panelSet().togglePanel(53504);
    panelSet().togglePanel(53600);
    EXPECT_EQ(shown().size(), 4U);
    EXPECT_EQ(callCount("CWnd::PostMessage"), 0);
}

TEST_F(PanelRefreshTest, AFailedCreationLeavesTheRecordWithoutAPanelAndItsFlagAsItWas) {
    fail("CQrUiPanel::Create");
    show();
    EXPECT_EQ(panel(L"MAIN", L"Layers"), nullptr);
    EXPECT_EQ(shown(), (Names{"MAIN/Draw", "OTHER/Draw", "MAIN/Spare"}));
    // Its flag is still up: the next refresh makes it, while those on show lose theirs.
    panelSet().refreshPanels(0);
    EXPECT_EQ(shown(), (Names{"MAIN/Layers"}));
}

TEST_F(PanelRefreshTest, AFailedCreationForTheWorkspaceLeavesThePanelOutInItsPlace) {
    raiseFlag();
    fail("CQrUiPanel::Create");
    show();
    EXPECT_EQ(shown(), (Names{"MAIN/Draw"}));
    panelSet().refreshPanels(0);
    EXPECT_EQ(shown(), (Names{"MAIN/Layers"}));
    EXPECT_EQ(labels(popup(menuOfDashboard(), L"Panels")).front(), "*Layers");
}

TEST_F(PanelRefreshTest, WithoutMenuDataThereAreNoPanels) {
    fail("vxedGetPanelSetData");
    show();
    EXPECT_EQ(shown(), Names{});
    EXPECT_EQ(callCount("vxedGetWorkspacePanelData"), 0);
}

TEST_F(PanelRefreshTest, WithoutWorkspaceDataTheHostsOrderStays) {
    fail("vxedGetWorkspacePanelData");
    show();
    EXPECT_EQ(shown(), (Names{"MAIN/Draw", "MAIN/Layers", "OTHER/Draw", "MAIN/Spare"}));
}

TEST_F(PanelRefreshTest, AToolPanelWithoutDataIsLeftOutWithoutAWord) {
    fail("vxedGetToolPanelData");
    show();
    EXPECT_EQ(item(L"ID_Idle"), nullptr);
    EXPECT_NE(item(L"TPL_A"), nullptr);
    EXPECT_EQ(shown().size(), 4U);
}

TEST_F(PanelRefreshTest, ALayoutReportsTheSizeToThePaletteLater) {
    show();
    panelSet().relayout();
    EXPECT_EQ(callCount("QrUiResizeControlBarVerticalSize"), 0);
    settle();
    const std::string height = std::to_string(panelSet().GetWindowRect().Height() + 13);
    const std::string call = lastCall("QrUiResizeControlBarVerticalSize");
    EXPECT_NE(call.find(height), std::string::npos) << call;
}

TEST_F(PanelRefreshTest, RollingAPanelUpOrDownReportsTheSize) {
    show();
    EXPECT_EQ(panelSet().OnPanelCollapsed(panel(L"MAIN", L"Layers")), 1);
    EXPECT_EQ(panelSet().OnPanelExpanded(panel(L"MAIN", L"Layers")), 1);
    EXPECT_EQ(callCount("CWnd::PostMessage"), 2);
}

TEST_F(PanelRefreshTest, APanelTakesTitleIdAndGroupsOfItsRecord) {
    show();
    CVxDaPanel* house = panel(L"OTHER", L"Draw");
    ASSERT_NE(house, nullptr);
    EXPECT_EQ(house->GetWindowText(), L"House");
    EXPECT_TRUE(house->toolPaletteGroup().isEmpty());
    EXPECT_EQ(house->GetParent(), &panelSet());
}

}  // namespace
