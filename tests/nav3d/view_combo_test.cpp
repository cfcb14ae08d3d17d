#include "tests/nav3d/view_combo_fixture.h"
#include "workbench/gestures/list_gestures.h"
#include "workbench/windows/background_painter.h"

#include <hostapi/zorq/views.h>

#include <gmock/gmock.h>

namespace {

using testing::Contains;
using Calls = std::vector<std::string>;

/// The steps of a rebuild that can be seen from outside.
const std::vector<std::string_view> kRebuildSteps{
    "vxInternalGetCurVPAppliedView", "CQrUiComboCtrl::ResetContent", "CQrUiComboCtrl::SetCurSel",
    "vxInternalIsCurVPZoomUndoAvailable"};

// Creation

TEST_F(ViewComboTest, PartsHaveTheirIdsTextsAndFont) {
    EXPECT_EQ(bench().windows().find(window())->id, 104);
    EXPECT_EQ(combo().GetDlgCtrlID(), 5007);
    const workbench::ItemView button =
        workbench::viewOf(bench().toolkit(), *item(L"TPB_3DNAV_COMBO"));
    EXPECT_EQ(button.image, "RCDATA_3DNAV_COMBO");
    EXPECT_EQ(button.name, stringOf(1238));
    EXPECT_EQ(tipOf(combo().m_hWnd), stringOf(1280));
    EXPECT_TRUE(hasThemeFont(combo().m_hWnd));
}

TEST_F(ViewComboTest, ListIsMadeAsWideAsTheControlAndBehindTheButton) {
    takeJournal();
    rebuildControl();
    const int width = firstRectOf(window()).Width();
    EXPECT_THAT(takeCallLines({"CQrUiComboCtrl::Create"}),
                Contains("CQrUiComboCtrl::Create(1345389091, " + std::to_string(width) +
                         ", 300, object, 5007)"));
    const CRect list = firstRectOf(combo().m_hWnd);
    EXPECT_EQ(list.left, 0);
    EXPECT_EQ(list.top, 0);
    const auto& row = *dynamic_cast<CQrUiToolPanel*>(CWnd::FromHandle(window()));
    ASSERT_EQ(row.GetToolPanelItemCount(), 2);
    EXPECT_EQ(row.GetToolPanelItem(0)->GetID(), L"TPB_3DNAV_COMBO");
    EXPECT_EQ(row.GetToolPanelItem(1)->GetControl(), combo().m_hWnd);
}

TEST_F(ViewComboTest, MessagesAreAnsweredZero) {
    EXPECT_EQ(send(1726), 0);
    EXPECT_EQ(send(1726, 0, 1), 0);
    EXPECT_EQ(send(1727, 1, reinterpret_cast<LPARAM>(L"CVPORT")), 0);
    EXPECT_EQ(send(1730, 0, reinterpret_cast<LPARAM>(L"VIEW")), 0);
    EXPECT_EQ(send(1731, 0, reinterpret_cast<LPARAM>(L"VIEW")), 0);
    EXPECT_EQ(send(1736), 0);
    select(L"Top");
    EXPECT_EQ(send(1736), 0);
    begin(L"LINE");
    EXPECT_EQ(send(1736), 0);
    finish();
    choose(L"Top");
    begin(L"LINE");
    choose(L"Bottom");
    EXPECT_EQ(send(1736), 0);
    finish();
    takeSent();
}

TEST_F(ViewComboTest, BackgroundIsWhite) {
    EXPECT_EQ(workbench::paintBackground(bench().windows(), window()), 0xffffffU);
    EXPECT_EQ(send(WM_ERASEBKGND, 0), 1) << "also without a context";
}

// The list

TEST_F(ViewComboTest, RebuildSelectsTheFirstEntryAndBringsTheButtonUpToDate) {
    takeJournal();
    tellOf(L"CVPORT");
    EXPECT_EQ(takeCallLines(kRebuildSteps),
              (Calls{"vxInternalGetCurVPAppliedView()", "CQrUiComboCtrl::ResetContent()",
                     "CQrUiComboCtrl::SetCurSel(0)", "vxInternalIsCurVPZoomUndoAvailable()"}));
}

TEST_F(ViewComboTest, RebuildSelectsTheAppliedViewBehindTheFirstEntry) {
    addView("Attic");
    addView("Garden");
    restore(L"Garden");
    takeJournal();
    tellOf(L"CVPORT");
    EXPECT_EQ(takeCallLines(kRebuildSteps),
              (Calls{"vxInternalGetCurVPAppliedView()", "CQrUiComboCtrl::ResetContent()",
                     "CQrUiComboCtrl::SetCurSel(0)", "CQrUiComboCtrl::SetCurSel(1)",
                     "vxInternalIsCurVPZoomUndoAvailable()"}));
    EXPECT_EQ(selected(), L"Garden");
}

TEST_F(ViewComboTest, AppliedViewThatHasGoneLeavesTheFirstEntrySelected) {
    addView("Attic");
    addView("Garden");
    restore(L"Garden");
    setDb("views.Garden", workbench::Value());
    ASSERT_FALSE(vxInternalGetCurVPAppliedView().isNull());
    tellOf(L"CVPORT");
    EXPECT_EQ(entries(), withPresets({L"Attic", L"-"}));
    EXPECT_EQ(selected(), L"Attic");
}

TEST_F(ViewComboTest, EachVariableOfTheListRebuildsItAndNoOther) {
    for (const wchar_t* name : {L"CVPORT", L"TILEMODE", L"DASHBOARDSTATE"}) {
        takeJournal();
        tellOf(name);
        EXPECT_TRUE(wasRebuilt()) << workbench::toUtf8(name);
    }
    for (const wchar_t* name : {L"cvport", L"PERSPECTIVE", L"LUPREC"}) {
        takeJournal();
        tellOf(name);
        EXPECT_EQ(takeCalls(), Calls{}) << workbench::toUtf8(name);
    }
}

TEST_F(ViewComboTest, DocumentThatBecameCurrentRebuildsIt) {
    takeJournal();
    send(1726, 0, 0);
    EXPECT_EQ(takeCalls(), Calls{}) << "there is no document";
    newDocument(L"B");
    EXPECT_TRUE(wasRebuilt());
}

TEST_F(ViewComboTest, HiddenDashboardIsNotRebuilt) {
    hideDashboard();
    tellOf(L"CVPORT");
    send(1726, 0, 1);
    send(1730, 0, reinterpret_cast<LPARAM>(L"VIEW"));
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(ViewComboTest, AppliedViewIsSelectedAndTheCurrentEntryIsGone) {
    addView("Garden");
    type(L"-VIEW\nR\nGarden\n");
    EXPECT_EQ(entries(), withPresets({L"Garden", L"-"}));
    EXPECT_EQ(selected(), L"Garden");
}

TEST_F(ViewComboTest, OpeningBringsANewViewAndKeepsTheSelection) {
    addView("Garden");
    notify(kDropDown);
    EXPECT_EQ(selected(), L"Current View");
    const auto all = entries();
    EXPECT_NE(std::find(all.begin(), all.end(), L"Garden"), all.end());
    notify(kCloseUp);
}

TEST_F(ViewComboTest, OpeningAfterTheSelectedViewHasGoneLeavesTheRebuildsSelection) {
    addView("Garden");
    addView("Attic");
    rebuild();
    combo().SetCurSel(3);
    ASSERT_EQ(selected(), L"Garden");
    setDb("views.Garden", workbench::Value());
    notify(kDropDown);
    EXPECT_EQ(selected(), L"Current View");
    notify(kCloseUp);
}

TEST_F(ViewComboTest, OpenListIsToldToTheToolkit) {
    EXPECT_EQ(send(0x7101), 0);
    ASSERT_TRUE(workbench::gestures::openList(bench().toolkit(), combo().m_hWnd));
    EXPECT_EQ(send(0x7101), 1);
    ASSERT_TRUE(workbench::gestures::closeList(bench().toolkit(), combo().m_hWnd));
    EXPECT_EQ(send(0x7101), 0);
}

TEST_F(ViewComboTest, OpeningKeepsTheFirstNamedViewThoughAnotherIsApplied) {
    addView("Attic");
    addView("Garden");
    restore(L"Garden");
    select(L"Attic");
    notify(kDropDown);
    EXPECT_EQ(selected(), L"Attic");
    notify(kCloseUp);
}

TEST_F(ViewComboTest, OpeningKeepsAPresetThoughAViewIsApplied) {
    addView("Garden");
    restore(L"Garden");
    select(L"NW Isometric");
    notify(kDropDown);
    EXPECT_EQ(selected(), L"NW Isometric");
    notify(kCloseUp);
}

TEST_F(ViewComboTest, OpeningWithoutASelectionShowsTheCurrentView) {
    combo().SetCurSel(-1);
    notify(kDropDown);
    EXPECT_EQ(selected(), L"Current View");
    notify(kCloseUp);
}

TEST_F(ViewComboTest, OpeningWithoutASelectionLeavesAnAppliedViewSelected) {
    addView("Attic");
    addView("Garden");
    restore(L"Garden");
    combo().SetCurSel(-1);
    notify(kDropDown);
    EXPECT_EQ(selected(), L"Garden");
    notify(kCloseUp);
}

TEST_F(ViewComboTest, NoticesOfOtherPartsAndOtherNoticesAreIgnored) {
    select(L"Top");
    for (const UINT code : {kDropDown, kCloseUp, kSelEndOk})
        send(WM_COMMAND, code << 16 | 4711, reinterpret_cast<LPARAM>(combo().m_hWnd));
    notify(1);
    EXPECT_EQ(takeCalls(), Calls{});
    EXPECT_EQ(send(0x7101), 0);
}

}  // namespace
