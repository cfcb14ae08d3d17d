#include "palette/tool_items.h"

#include "tests/palette/palette_fixture.h"
#include "tests/support/allocation_counter.h"
#include "tests/support/call_lines.h"
#include "workbench/core/journal.h"
#include "workbench/toolkit/tool_panel_item_record.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/tool_panel.h>

namespace {

constexpr UINT kDisabled = 2;
constexpr UINT kChecked = 16;
constexpr UINT kHidden = 32;

class ToolItemsTest : public PaletteTest {
protected:
    std::vector<UINT> statesOf(std::wstring_view id) {
        std::vector<UINT> states;
        for (const CQrUiToolPanelItem* item : *panelSet().findToolPanelItems(id)) {
            states.push_back(item->GetState());
        }
        return states;
    }
    /// How often the tool panel of an item is to be drawn anew during some work.
    int repaintsOf(std::wstring_view id, void (*work)()) {
        const HWND toolPanel = item(id)->m_record->toolPanel->m_hWnd;
        int repaints = 0;
        bench().windows().changes().setObserver(
            [&repaints, toolPanel](HWND window) { repaints += window == toolPanel ? 1 : 0; });
        work();
        bench().windows().changes().setObserver(nullptr);
        return repaints;
    }
    VxString currentTool(std::wstring_view flyout) {
        const CQrUiToolPanelItem* tool = item(flyout)->GetCurrentFlyoutTool();
        return tool == nullptr ? L"" : tool->GetID();
    }
};

using States = std::vector<UINT>;

TEST_F(ToolItemsTest, AFlagReachesAllItemsOfAnId) {
    show();
    EXPECT_EQ(SetItemFlag(L"ID_Line", true, kChecked), 1);
    EXPECT_EQ(statesOf(L"ID_Line"), (States{kChecked, kChecked}));
    EXPECT_EQ(SetItemFlag(L"ID_Line", true, kDisabled), 1);
    EXPECT_EQ(SetItemFlag(L"ID_Line", false, kChecked), 1);
    EXPECT_EQ(statesOf(L"ID_Line"), (States{kDisabled, kDisabled}));
}

TEST_F(ToolItemsTest, AFlagComesWithANameAndAPicture) {
    show();
    EXPECT_EQ(SetItemFlag(L"ID_Idle", true, kChecked, L"Rest", L"RCDATA_LIGHT_SUN_ON"), 1);
    EXPECT_EQ(item(L"ID_Idle")->GetName(), L"Rest");
    EXPECT_EQ(bench().toolkit().pictures().source(item(L"ID_Idle")->m_record->smallImage),
              "RCDATA_LIGHT_SUN_ON");
}

TEST_F(ToolItemsTest, AnUnknownIdChangesNothing) {
    show();
    EXPECT_EQ(SetItemFlag(L"ID_Nowhere", true, kChecked), 0);
    EXPECT_EQ(SetItemFlag(L"id_line", true, kChecked), 0);
    EXPECT_EQ(setItemName(L"ID_Nowhere", L"Name"), 0);
    EXPECT_EQ(statesOf(L"ID_Line"), (States{0, 0}));
}

TEST_F(ToolItemsTest, WithoutAPanelSetNothingIsFound) {
    EXPECT_EQ(SetItemFlag(L"ID_Line", true, kChecked), 0);
    EXPECT_EQ(setItemName(L"ID_Line", L"Name"), 0);
    EXPECT_EQ(selectFlyoutTool(L"TPL_A", L"ID_A1"), 0);
    EXPECT_EQ(setItemsHidden({L"ID_Line"}, true), 0);
    EXPECT_FALSE(isItemHidden(L"ID_Line"));
    load();
    EXPECT_EQ(SetItemFlag(L"ID_Line", true, kChecked), 0);
    EXPECT_EQ(selectFlyoutTool(L"TPL_A", L"ID_A1"), 0);
}

TEST_F(ToolItemsTest, AFlagThatChangesNothingTakesNoMemory) {
    show();
    bench().journal().setRecording(false);
    SetItemFlag(L"ID_ExampleCount", true, kChecked);
    const std::size_t before = support::allocationCount();
    SetItemFlag(L"ID_ExampleCount", true, kChecked);
    EXPECT_EQ(support::allocationCount(), before);
}

TEST_F(ToolItemsTest, AnItemIsDrawnAnewOnlyIfItsStateOrPictureChanged) {
    show();
    EXPECT_EQ(repaintsOf(L"ID_Idle", [] { SetItemFlag(L"ID_Idle", false, kChecked); }), 0);
    EXPECT_EQ(repaintsOf(L"ID_Idle", [] { SetItemFlag(L"ID_Idle", false, kChecked, L"Rest"); }), 0);
    // The toolkit draws it anew for the state itself, the dashboard once more.
    EXPECT_EQ(repaintsOf(L"ID_Idle", [] { SetItemFlag(L"ID_Idle", true, kChecked); }), 2);
    EXPECT_EQ(repaintsOf(L"ID_Idle", [] { SetItemFlag(L"ID_Idle", true, kChecked); }), 0);
    // A picture that isn't there is not set.
    EXPECT_EQ(repaintsOf(L"ID_Idle",
                         [] { SetItemFlag(L"ID_Idle", true, kChecked, nullptr, L"RCDATA_NONE"); }),
              1);
}

TEST_F(ToolItemsTest, APictureComesSmallFromTheDashboardsOwnLibrary) {
    show();
    SetItemFlag(L"ID_Line", true, kChecked, nullptr, L"RCDATA_LIGHT_SUN_ON");
    const std::string question =
        "QrUiLoadImageFromResource(\"VxDashboardRes.dll\", \"RCDATA_LIGHT_SUN_ON\", 16, -1)";
    const std::string repaint = "CQrUiToolPanelItem::Invalidate(\"ID_Line\")";
    EXPECT_EQ(takeLines(), (std::vector<std::string>{question, repaint, question, repaint}))
        << "one for each item";
    EXPECT_EQ(item(L"ID_Line")->m_record->largeImage, nullptr);
    EXPECT_EQ(item(L"ID_Line")->GetName(), L"");
}

TEST_F(ToolItemsTest, ANameIsSetOnAllItems) {
    show();
    EXPECT_EQ(setItemName(L"ID_Line", L"Straight"), 1);
    EXPECT_EQ(item(L"ID_Line", 0)->GetName(), L"Straight");
    EXPECT_EQ(item(L"ID_Line", 1)->GetName(), L"Straight");
}

TEST_F(ToolItemsTest, HidingChangesAllItemsAndAsksForANewLayout) {
    show();
    EXPECT_EQ(setItemsHidden({L"ID_Line", L"ID_Idle"}, true), 1);
    EXPECT_EQ(statesOf(L"ID_Line"), (States{kHidden, kHidden}));
    EXPECT_EQ(statesOf(L"ID_Idle"), States{kHidden});
    EXPECT_TRUE(isItemHidden(L"ID_Line"));
    EXPECT_NE(lastCall("CWnd::PostMessage").find("1565"), std::string::npos);
    EXPECT_EQ(setItemsHidden({L"ID_Line"}, false), 1);
    EXPECT_EQ(statesOf(L"ID_Line"), (States{0, 0}));
    EXPECT_FALSE(isItemHidden(L"ID_Line"));
}

TEST_F(ToolItemsTest, HidingWhatIsHiddenAnswersOneAndPostsNothing) {
    show();
    setItemsHidden({L"ID_Line"}, true);
    forget();
    EXPECT_EQ(setItemsHidden({L"ID_Line"}, true), 1);
    EXPECT_EQ(setItemsHidden({}, true), 1);
    EXPECT_EQ(callCount("CWnd::PostMessage"), 0);
}

TEST_F(ToolItemsTest, HidingPostsThePanelSetItsThemeOnceForAllItems) {
    show();
    ASSERT_NE(panelSet().GetTheme(), nullptr);
    bench().windows().setName(panelSet().m_hWnd, "PanelSet");
    const auto themes = [this] {
        return support::messageLines(bench().journal().records(), "PanelSet", 1565);
    };
    forget();
    setItemsHidden({L"ID_Line", L"ID_Idle"}, true);
    EXPECT_EQ(themes(), std::vector<std::string>{}) << "it is posted, not sent";
    settle();
    EXPECT_EQ(themes(), std::vector<std::string>{"1565(0, object)"});
}

TEST_F(ToolItemsTest, HidingAnIdWhoseOnlyControlCouldNotBeMadePostsNothing) {
    show();
    ASSERT_TRUE(panelSet().findToolPanelItems(L"Broken")->empty());
    EXPECT_EQ(setItemsHidden({L"Broken"}, true), 1);
    EXPECT_EQ(takeLines(), std::vector<std::string>{});
    EXPECT_TRUE(isItemHidden(L"Broken"));
}

TEST_F(ToolItemsTest, ShowingAnIdAgainOnlyTakesTheHiddenBitAway) {
    show();
    item(L"ID_Idle")->SetState(kChecked);
    setItemsHidden({L"ID_Idle"}, true);
    EXPECT_EQ(statesOf(L"ID_Idle"), States{kChecked | kHidden});
    EXPECT_EQ(setItemsHidden({L"ID_Idle"}, false), 1);
    EXPECT_EQ(statesOf(L"ID_Idle"), States{kChecked});
    EXPECT_EQ(setItemsHidden({L"ID_Idle"}, false), 1) << "nothing to do";
}

TEST_F(ToolItemsTest, HidingStopsAtAnIdWithoutItems) {
    show();
    EXPECT_EQ(setItemsHidden({L"ID_Line", L"ID_Nowhere", L"ID_Idle"}, true), 0);
    EXPECT_EQ(statesOf(L"ID_Line"), (States{kHidden, kHidden}));
    EXPECT_EQ(statesOf(L"ID_Idle"), States{0});
    EXPECT_EQ(callCount("CWnd::PostMessage"), 0);
    EXPECT_TRUE(isItemHidden(L"ID_Idle"));
}

TEST_F(ToolItemsTest, HidingBeforeTheFirstShowOnlyKeepsTheList) {
    load();
    EXPECT_EQ(setItemsHidden({L"ID_Nowhere"}, true), 1);
    EXPECT_TRUE(isItemHidden(L"ID_Nowhere"));
}

TEST_F(ToolItemsTest, AToolIsFoundInItsFlyoutWithoutRegardToCase) {
    show();
    panelSet().hidePanel(panel(L"OTHER", L"Draw"));
    EXPECT_EQ(selectFlyoutTool(L"TPL_Inner", L"id_b1"), 1);
    EXPECT_EQ(currentTool(L"TPL_Inner"), L"ID_B1");
}

TEST_F(ToolItemsTest, AToolThatIsNotInTheFlyoutLeavesItAlone) {
    show();
    const VxString before = currentTool(L"TPL_Inner");
    EXPECT_EQ(selectFlyoutTool(L"TPL_Inner", L"ID_A1"), 1);
    EXPECT_EQ(currentTool(L"TPL_Inner"), before);
}

TEST_F(ToolItemsTest, AToolThatIsChosenHasItsFlyoutDrawnAnewOnce) {
    show();
    EXPECT_EQ(repaintsOf(L"TPL_Own", [] { selectFlyoutTool(L"TPL_Own", L"ID_B1"); }), 1);
    EXPECT_EQ(repaintsOf(L"TPL_Own", [] { selectFlyoutTool(L"TPL_Own", L"ID_A1"); }), 0);
}

TEST_F(ToolItemsTest, AToolOnAllFlyoutsOfAKeyIsChosenOnEach) {
    itemData(L"MAIN", L"DrawTools", 4).id = L"TPL_Twice";
    itemData(L"MAIN", L"TPL_A", 2).id = L"TPL_Twice";
    itemData(L"MAIN", L"TPL_B", 0).id = L"ID_First";
    show();
    ASSERT_EQ(panelSet().findToolPanelItems(L"TPL_Twice")->size(), 2U);
    EXPECT_EQ(selectFlyoutTool(L"TPL_Twice", L"ID_First"), 1);
    for (std::size_t n = 0; n < 2; ++n)
        EXPECT_EQ(item(L"TPL_Twice", n)->GetCurrentFlyoutTool()->GetID(), L"ID_First");
}

TEST_F(ToolItemsTest, AKeyWithoutItemsAnswersOne) {
    show();
    EXPECT_EQ(selectFlyoutTool(L"TPL_Nowhere", L"ID_A1"), 1);
}

TEST_F(ToolItemsTest, AFlyoutKeyThatIncludesAButtonFailsThereWithEarlierFlyoutsChanged) {
    show();
    // The flyout stands on a panel that was built first, the button of the same ID on a later one.
    EXPECT_EQ(selectFlyoutTool(L"TPL_A", L"ID_A3"), 0);
    EXPECT_EQ(currentTool(L"TPL_A"), L"ID_A3");
}

}  // namespace
