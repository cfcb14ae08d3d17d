#include "tests/palette/palette_fixture.h"
#include "tests/support/call_lines.h"
#include "workbench/menu/menu_host.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/messages.h>

namespace {

using Names = std::vector<std::string>;

class PanelRefreshTest : public PaletteTest {
protected:
    bool isFlagRaised() { return bench().menu().workspaces().panelRefreshFromWorkspace(); }
    /// The lines of the menu of panels.
    Names panelLines() { return labels(popup(menuOfDashboard(), L"Panels")); }
    /// The window ID of the tool panel that stands on the last panel.
    int lastToolPanelId() {
        return bench()
            .toolkit()
            .panels()
            .of(panel(L"OTHER", L"Draw"))
            .toolPanels.at(0)
            ->GetDlgCtrlID();
    }
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

// What is shown, and what wins

TEST_F(PanelRefreshTest, WithTheHostsFlagTheWorkspaceWinsOverWhatIsSaved) {
    show();
    panelSet().togglePanel(53500);
    ASSERT_EQ(panelSet().saveToProfile(), 1);
    dashboard().palette()->replacePanelSet();
    raiseFlag();
    dashboard().loadPanels();
    EXPECT_EQ(shown(), (Names{"MAIN/Layers", "MAIN/Draw"}))
        << "saved were all but the layers, in the workspace stand two";
    dashboard().palette()->replacePanelSet();
    dashboard().loadPanels();
    EXPECT_EQ(shown(), (Names{"MAIN/Draw", "OTHER/Draw", "MAIN/Spare"}))
        << "without the flag what is saved counts again";
}

TEST_F(PanelRefreshTest, WithTheFlagAPanelThatIsOnShowAlreadyIsShownAnewInItsPlace) {
    show();
    const CVxDaPanel* before = panel(L"MAIN", L"Spare");
    raiseFlag();
    EXPECT_EQ(panelSet().setVisiblePanels({{L"Spare", L"MAIN"}, {L"Draw", L"OTHER"}}), 1);
    EXPECT_EQ(shown(), (Names{"MAIN/Spare", "OTHER/Draw"}));
    EXPECT_EQ(panel(L"MAIN", L"Spare"), before);
    EXPECT_EQ(panelSet().GetPanelCount(), 2);
}

TEST_F(PanelRefreshTest, TheFlagIsLeftAloneWhileItIsDown) {
    show();
    panelSet().refreshPanels(0);
    panelSet().refreshPanels(1);
    EXPECT_EQ(takeLines({"vxedGetPanelRefreshFromWS", "vxedSetPanelRefreshFromWS"}),
              (Names{"vxedGetPanelRefreshFromWS()", "vxedGetPanelRefreshFromWS()"}));
    raiseFlag();
    panelSet().refreshPanels(0);
    EXPECT_EQ(takeLines({"vxedGetPanelRefreshFromWS", "vxedSetPanelRefreshFromWS"}),
              (Names{"vxedGetPanelRefreshFromWS()", "vxedSetPanelRefreshFromWS(false)"}));
}

TEST_F(PanelRefreshTest, ReorderingWithoutTheFlagTakesTheWorkspacesOrderAndShowsByTheFlags) {
    fail("vxedGetWorkspacePanelData");
    show();
    ASSERT_EQ(shown(), (Names{"MAIN/Draw", "MAIN/Layers", "OTHER/Draw", "MAIN/Spare"}));
    panelSet().setVisiblePanels({{L"Spare", L"MAIN"}, {L"Layers", L"MAIN"}});
    EXPECT_EQ(panelLines(), (Names{"Drawing", "Layers", "House", "Spare"}))
        << "no reordering was asked for";
    panelSet().refreshPanels(1);
    EXPECT_EQ(panelLines(), (Names{"Spare", "Layers", "Drawing", "House"}));
}

// Building again

TEST_F(PanelRefreshTest, ASecondBuildMakesAllAnewAndDoublesNothing) {
    show();
    const std::vector<HWND> before = panelSet().controlWindows();
    EXPECT_EQ(dashboard().loadPanels(), 1);
    EXPECT_EQ(shown(), (Names{"MAIN/Layers", "MAIN/Draw", "OTHER/Draw", "MAIN/Spare"}));
    EXPECT_EQ(panelSet().GetPanelCount(), 4);
    EXPECT_EQ(panelSet().findToolPanelItems(L"ID_Line")->size(), 2U);
    EXPECT_EQ(panelSet().controlWindows().size(), before.size());
    EXPECT_FALSE(IsWindow(before[0])) << "it went with its panel";
}

TEST_F(PanelRefreshTest, ASecondBuildFollowsTheWorkspaceThatIsCurrentThen) {
    show();
    ASSERT_TRUE(bench().menu().switchWorkspace("House"));
    EXPECT_EQ(dashboard().loadPanels(), 1);
    EXPECT_EQ(shown(), Names{"OTHER/Draw"});
    EXPECT_EQ(panelLines(), (Names{"*House", "Drawing", "Layers", "Spare"}));
}

TEST_F(PanelRefreshTest, ASecondBuildWithoutWorkspaceDataKeepsTheOrderThatWasThere) {
    show();
    fail("vxedGetWorkspacePanelData");
    EXPECT_EQ(dashboard().loadPanels(), 1);
    EXPECT_EQ(shown(), (Names{"MAIN/Layers", "MAIN/Draw", "OTHER/Draw", "MAIN/Spare"}));
}

TEST_F(PanelRefreshTest, AHoleInTheMenuDataIsPassedOver) {
    load();
    auto& panels = const_cast<VxPanelSetData&>(*vxedGetPanelSetData());
    panels.insert(panels.begin(), nullptr);
    showLoaded();
    EXPECT_EQ(shown(), (Names{"MAIN/Layers", "MAIN/Draw", "OTHER/Draw", "MAIN/Spare"}));
}

// One panel

TEST_F(PanelRefreshTest, ShowingAndHidingAPanelAnswersOneAndIsDoneOnce) {
    show();
    EXPECT_EQ(panelSet().showPanel(0, true), 1);
    EXPECT_EQ(takeLines(), Names{}) << "it is on show";
    EXPECT_EQ(panelSet().showPanel(0, false), 1);
    EXPECT_EQ(takeLines(), Names{"CWnd::ShowWindow(\"Layers\", 0)"});
    EXPECT_EQ(panelSet().showPanel(0, false), 1);
    EXPECT_EQ(takeLines(), Names{});
    EXPECT_EQ(panelSet().showPanel(0, true), 1);
    EXPECT_EQ(takeLines({"CWnd::ShowWindow", "CQrUiPanel::Create"}),
              Names{"CWnd::ShowWindow(\"Layers\", 5)"});
    EXPECT_EQ(panelSet().GetPanelCount(), 4);
}

TEST_F(PanelRefreshTest, HidingAPanelThatWasNeverMadeAnswersOneAndMakesNone) {
    raiseFlag();
    show();
    ASSERT_EQ(panel(L"MAIN", L"Spare"), nullptr);
    EXPECT_EQ(panelSet().showPanel(3, false), 1);
    EXPECT_EQ(takeLines(), Names{});
    EXPECT_EQ(panel(L"MAIN", L"Spare"), nullptr);
}

TEST_F(PanelRefreshTest, APanelThatCannotBeMadeAnswersZeroAndIsTriedAgain) {
    raiseFlag();
    show();
    fail("CQrUiPanel::Create");
    EXPECT_EQ(panelSet().showPanel(3, true), 0);
    EXPECT_EQ(panel(L"MAIN", L"Spare"), nullptr);
    EXPECT_EQ(panelSet().showPanel(3, true), 1);
    EXPECT_EQ(shown(), (Names{"MAIN/Layers", "MAIN/Draw", "MAIN/Spare"}));
}

TEST_F(PanelRefreshTest, APanelEntersTheToolkitsListBeforeItIsShownAndLeavesItAfterItIsHidden) {
    show();
    const CVxDaPanel* layers = panel(L"MAIN", L"Layers");
    Names listed;
    const auto watch = bench().journal().addListener([&](const workbench::JournalRecord& record) {
        if (record.kind == "call" && support::callLine(record).starts_with("CWnd::ShowWindow(\"L"))
            listed.push_back(panelSet().HasPanel(layers) != 0 ? "listed" : "not listed");
    });
    panelSet().showPanel(0, false);
    EXPECT_EQ(panelSet().HasPanel(layers), 0);
    panelSet().showPanel(0, true);
    EXPECT_EQ(listed, (Names{"listed", "listed"}));
}

TEST_F(PanelRefreshTest, APanelThatIsListedStillIsNotListedTwice) {
    show();
    // Hidden by somebody else, without the list.
    panel(L"MAIN", L"Layers")->ShowWindow(SW_HIDE);
    panelSet().togglePanel(53500);
    EXPECT_EQ(shown().size(), 4U);
    EXPECT_EQ(panelSet().GetPanelCount(), 4);
}

TEST_F(PanelRefreshTest, HidingAPanelThatIsNotOneOfTheRecordsIsIgnored) {
    show();
    const CVxDaPanel stranger;
    panelSet().hidePanel(&stranger);
    panelSet().hidePanel(nullptr);
    EXPECT_EQ(shown().size(), 4U);
    EXPECT_EQ(takeLines({"CWnd::ShowWindow"}), Names{});
}

TEST_F(PanelRefreshTest, APanelThatIsToggledOnLaterIsFilledAndGetsTheTheme) {
    raiseFlag();
    show();
    std::vector<workbench::Value> themes;
    auto watch = bench().journal().addListener([&](const workbench::JournalRecord& record) {
        if (record.field("control") == workbench::Value("Draw") &&
            record.field("number") == workbench::Value(1565))
            themes.push_back(record.field("lparam"));
    });
    panelSet().togglePanel(53502);
    EXPECT_EQ(themes, std::vector<workbench::Value>{"object"}) << "before it is laid out";
    EXPECT_NE(item(L"ID_Wall"), nullptr);
    watch = {};
    settle();
}

TEST_F(PanelRefreshTest, APanelIsMadeHiddenFilledAndThenShown) {
    raiseFlag();
    show();
    panelSet().togglePanel(53502);
    EXPECT_EQ(
        takeLines({"CQrUiPanel::Create", "QrUiLoadImageFromResource", "vxedGetToolPanelData",
                   "CQrUiToolPanel::Create", "CWnd::ShowWindow", "CWnd::PostMessage"}),
        (Names{"CQrUiPanel::Create(1073741824, \"House\", object)",
               "QrUiLoadImageFromResource(\"ZORQbtn.xmx\", \"RCDATA_PANEL_HOUSETOOLS\", 16, -1)",
               "QrUiLoadImageFromResource(\"HouseTools.xmx\", \"RCDATA_PANEL_HOUSETOOLS\", 16, -1)",
               "vxedGetToolPanelData(\"OTHER\", \"HouseTools\")",
               "CQrUiToolPanel::Create(1342177280, object, " + std::to_string(lastToolPanelId()) +
                   ", 2)",
               "QrUiLoadImageFromResource(\"ZORQbtn.xmx\", \"RCDATA_TOOL_HT_WALL\", 16, -1)",
               "QrUiLoadImageFromResource(\"HouseTools.xmx\", \"RCDATA_TOOL_HT_WALL\", 16, -1)",
               "QrUiLoadImageFromResource(\"ZORQbtn.xmx\", \"RCDATA_TOOL_HT_WALL\", 32, -1)",
               "QrUiLoadImageFromResource(\"HouseTools.xmx\", \"RCDATA_TOOL_HT_WALL\", 32, -1)",
               "CWnd::ShowWindow(\"Draw\", 5)", "CWnd::PostMessage(\"CQrUiPalette\", 1534)"}));
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
    const CRect rect = panelSet().GetWindowRect();
    bench().windows().setName(dashboard().palette()->m_hWnd, "Palette");
    forget();
    panelSet().relayout();
    const auto reports = [this] {
        return support::messageLines(bench().journal().records(), "Palette", 1534);
    };
    EXPECT_EQ(reports(), Names{});
    settle();
    const UINT size = MAKELONG(static_cast<UINT>(rect.Width()), static_cast<UINT>(rect.Height()));
    EXPECT_EQ(reports(), Names{"1534(" + std::to_string(size) + ", 0)"});
    EXPECT_EQ(
        takeLines({"QrUiResizeControlBarVerticalSize"}),
        Names{"QrUiResizeControlBarVerticalSize(" + std::to_string(rect.Height() + 13) + ")"});
}

TEST_F(PanelRefreshTest, ALayoutStacksThePanelsThatAreOnShow) {
    show();
    const int before = panelSet().GetWindowRect().Height();
    const int top = panel(L"MAIN", L"Draw")->GetWindowRect().top;
    panelSet().togglePanel(53500);
    EXPECT_LT(panel(L"MAIN", L"Draw")->GetWindowRect().top, top);
    EXPECT_LT(panelSet().GetWindowRect().Height(), before);
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
