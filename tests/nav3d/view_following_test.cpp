#include "tests/nav3d/view_combo_fixture.h"
#include "workbench/editor/editor.h"
#include "workbench/gestures/key_gestures.h"

#include <hostapi/vxdashboard.h>

namespace {

using Calls = std::vector<std::string>;

// Following the view

TEST_F(ViewComboTest, RestoreByTheListKeepsItsSelection) {
    addView("Garden");
    choose(L"Garden");
    takeSent();
    EXPECT_EQ(selected(), L"Garden");
    moveView();
    EXPECT_EQ(selected(), L"Current View") << "the command's end has cleared the mark";
}

TEST_F(ViewComboTest, OwnRestoreIsNotFollowedUntilItsCommandEnds) {
    begin(L"LINE");
    choose(L"Top");
    fail("vxedCommandActive");
    takeJournal();
    send(1736);
    EXPECT_EQ(selected(), L"Top");
    EXPECT_EQ(takeCalls(), Calls{}) << "the host is not even asked";
    for (const UINT over : {1730, 1731}) {
        addView(over == 1730 ? "Attic" : "Garden");
        takeJournal();
        send(over, 0, reinterpret_cast<LPARAM>(L"VIEW"));
        EXPECT_EQ(wasRebuilt(), over == 1731) << "the first end is that of the restore";
    }
    select(L"Top");
    send(1736);
    EXPECT_EQ(selected(), L"Current View");
    bench().faults().unfail("vxedCommandActive");
    finish();
    takeSent();
}

TEST_F(ViewComboTest, MovedViewSelectsTheCurrentEntryWithoutARebuild) {
    select(L"Top");
    send(1736);
    EXPECT_EQ(selected(), L"Current View");
    EXPECT_EQ(takeCallLines({"CQrUiComboCtrl::ResetContent", "CQrUiComboCtrl::SetCurSel"}),
              Calls{"CQrUiComboCtrl::SetCurSel(0)"});
}

TEST_F(ViewComboTest, MovedViewLeavesTheCurrentEntryASeparatorAndNoSelectionAlone) {
    for (const int index : {0, 1, -1}) {
        combo().SetCurSel(index);
        takeJournal();
        send(1736);
        EXPECT_EQ(combo().GetCurSel(), index);
        EXPECT_EQ(takeCallLines({"CQrUiComboCtrl::ResetContent", "CQrUiComboCtrl::SetCurSel"}),
                  Calls{});
    }
}

TEST_F(ViewComboTest, ViewMovedAwayFromANamedOneBringsTheCurrentEntry) {
    addView("Garden");
    restore(L"Garden");
    ASSERT_EQ(entries(), withPresets({L"Garden", L"-"}));
    moveView();
    EXPECT_EQ(entries(), withPresets({L"Current View", L"-", L"Garden", L"-"}));
    EXPECT_EQ(selected(), L"Current View");
}

TEST_F(ViewComboTest, ViewThatIsStillTheAppliedOneStaysSelected) {
    addView("Garden");
    restore(L"Garden");
    takeJournal();
    send(1736);
    EXPECT_TRUE(wasRebuilt());
    EXPECT_EQ(selected(), L"Garden");
}

TEST_F(ViewComboTest, MarkOfAPendingRebuildGoesAlsoWhileTheDashboardIsHidden) {
    select(L"Top");
    begin(L"LINE");
    send(1736);
    hideDashboard();
    finish();
    EXPECT_FALSE(wasRebuilt());
    paletteSet()->ShowWindow(SW_SHOW);
    begin(L"LINE");
    takeJournal();
    finish();
    EXPECT_FALSE(wasRebuilt()) << "nothing is pending any more";
}

TEST_F(ViewComboTest, PendingRebuildLeavesTheMarkOfAnOwnRestore) {
    begin(L"LINE");
    choose(L"Top");
    exported<SetForce3DNavUpdateFn>("setForce3DNavUpdate")(true);
    send(1736);
    exported<SetForce3DNavUpdateFn>("setForce3DNavUpdate")(false);
    takeJournal();
    send(1731, 0, reinterpret_cast<LPARAM>(L"LINE"));
    EXPECT_TRUE(wasRebuilt()) << "what was pending";
    send(1730, 0, reinterpret_cast<LPARAM>(L"VIEW"));
    EXPECT_FALSE(wasRebuilt()) << "the end of the restore";
    send(1730, 0, reinterpret_cast<LPARAM>(L"VIEW"));
    EXPECT_TRUE(wasRebuilt());
    finish();
    takeSent();
}

TEST_F(ViewComboTest, ViewThatAToolMovesIsFollowedWhileItsCommandRuns) {
    type(L"3DORBIT\n");
    select(L"Top");
    send(1736);
    EXPECT_EQ(selected(), L"Current View");
    type(L"\x1b");
}

TEST_F(ViewComboTest, ViewThatMovesDuringACommandRebuildsAtItsEnd) {
    combo().SetCurSel(2);
    begin(L"LINE");
    addView("Garden");
    send(1736);
    EXPECT_EQ(selected(), L"Top");
    finish();
    EXPECT_EQ(selected(), L"Current View");
    const auto all = entries();
    EXPECT_NE(std::find(all.begin(), all.end(), L"Garden"), all.end());
}

class ViewCommandEndTest : public ViewComboTest,
                           public testing::WithParamInterface<std::pair<const wchar_t*, bool>> {};

TEST_P(ViewCommandEndTest, RebuildsForTheViewCommandsAlone) {
    addView("Garden");
    bench().editor().reactors().commandEnded(GetParam().first);
    EXPECT_EQ(isListed(L"Garden"), GetParam().second);
}

TEST_P(ViewCommandEndTest, CancelledOneCountsLikeOneThatEnded) {
    addView("Garden");
    send(1731, 0, reinterpret_cast<LPARAM>(GetParam().first));
    EXPECT_EQ(isListed(L"Garden"), GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Names, ViewCommandEndTest,
                         testing::Values(std::pair{L"VIEW", true}, std::pair{L"NEWVIEW", true},
                                         std::pair{L"-VIEW", true}, std::pair{L"view", false},
                                         std::pair{L"ZOOM", false}));

TEST_F(ViewComboTest, ForcedUpdateFollowsItsOwnRestoresToo) {
    begin(L"LINE");
    choose(L"Top");
    send(1736);
    EXPECT_EQ(selected(), L"Top");
    exported<SetForce3DNavUpdateFn>("setForce3DNavUpdate")(true);
    bench().faults().fail("vxedCommandActive");
    send(1736);
    EXPECT_EQ(selected(), L"Current View");
    bench().faults().unfail("vxedCommandActive");
    exported<SetForce3DNavUpdateFn>("setForce3DNavUpdate")(false);
    finish();
    takeSent();
}

// The force flag

TEST_F(ViewComboTest, ForceFlagIsOffAgainAfterTheModuleWasLoadedAnew) {
    exported<SetForce3DNavUpdateFn>("setForce3DNavUpdate")(true);
    ASSERT_TRUE(unload());
    closeDocument(L"A");
    showControl("3DNavViewComboCtrl");
    begin(L"LINE");
    choose(L"Top");
    fail("vxedCommandActive");
    send(1736);
    EXPECT_EQ(selected(), L"Top");
    bench().faults().unfail("vxedCommandActive");
    finish();
    takeSent();
}

// Back

TEST_F(ViewComboTest, BackIsDisabledWithoutAnEarlierView) {
    EXPECT_TRUE(backDisabled());
    takeJournal();
    clickBack();
    EXPECT_EQ(takeCalls(), Calls{"vxInternalIsCurVPZoomUndoAvailable"});
}

TEST_F(ViewComboTest, BackGoesToThePreviousView) {
    moveView();
    rebuild();
    EXPECT_FALSE(backDisabled());
    clickIcon();
    EXPECT_EQ(takeCount("vxInternalZoomPrevious"), 1U);
    EXPECT_TRUE(backDisabled());
}

/// The list alone, whose calls of the host are therefore all that are made.
class BackTest : public ViewComboTest, public testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        useMenuOf("3DNavViewComboCtrl");
        showControl("3DNavViewComboCtrl");
        moveView();
        rebuild();
        takeJournal();
    }
    const std::vector<std::string_view> m_steps{"vxInternalIsCurVPZoomUndoAvailable",
                                                "VxAxDocLock::VxAxDocLock",
                                                "GetKeyState",
                                                "vxInternalZoomBack",
                                                "vxInternalZoomPrevious",
                                                "CQrUiComboCtrl::ResetContent",
                                                "VxAxDocLock::~VxAxDocLock"};
};

TEST_P(BackTest, StepsUnderALockAndThenRebuilds) {
    const bool shift = GetParam();
    workbench::gestures::holdKey(bench().toolkit(), "shift", shift);
    // What the step sets off in the list comes from a viewport, whose event is not wanted here.
    bench().editor().documents().current()->viewHistory().setQuiet(true);
    clickBack();
    EXPECT_EQ(takeCallLines(m_steps),
              (Calls{"vxInternalIsCurVPZoomUndoAvailable()", "VxAxDocLock::VxAxDocLock(object, 1)",
                     "GetKeyState(16)", shift ? "vxInternalZoomBack()" : "vxInternalZoomPrevious()",
                     "CQrUiComboCtrl::ResetContent()", "vxInternalIsCurVPZoomUndoAvailable()",
                     "VxAxDocLock::~VxAxDocLock()"}));
    workbench::gestures::holdKey(bench().toolkit(), "shift", false);
}

TEST_P(BackTest, HiddenDashboardIsNotRebuiltBehindTheStep) {
    const bool shift = GetParam();
    workbench::gestures::holdKey(bench().toolkit(), "shift", shift);
    hideDashboard();
    bench().editor().documents().current()->viewHistory().setQuiet(true);
    clickBack();
    EXPECT_EQ(takeCallLines(m_steps),
              (Calls{"vxInternalIsCurVPZoomUndoAvailable()", "VxAxDocLock::VxAxDocLock(object, 1)",
                     "GetKeyState(16)", shift ? "vxInternalZoomBack()" : "vxInternalZoomPrevious()",
                     "VxAxDocLock::~VxAxDocLock()"}));
    workbench::gestures::holdKey(bench().toolkit(), "shift", false);
}

INSTANTIATE_TEST_SUITE_P(Shift, BackTest, testing::Bool());

TEST_F(ViewComboTest, ButtonIsTouchedOnlyWhenItsStateChanges) {
    takeJournal();
    rebuild();
    EXPECT_TRUE(takeJournal("item").empty());
    moveView();
    rebuild();
    EXPECT_EQ(takeJournal("item").size(), 1U);
    rebuild();
    EXPECT_TRUE(takeJournal("item").empty());
}

TEST_F(ViewComboTest, ButtonOfAHiddenDashboardIsMadeDisabled) {
    moveView();
    hideDashboard();
    rebuildControl();
    EXPECT_TRUE(backDisabled()) << "whatever the viewport has behind it";
}

TEST_F(ViewComboTest, ButtonsRealStateComesWithTheCreationsSecondRebuild) {
    moveView();
    takeJournal();
    rebuildControl();
    EXPECT_EQ(takeCount("CQrUiComboCtrl::ResetContent"), 2U);
    EXPECT_FALSE(backDisabled());
}

}  // namespace
