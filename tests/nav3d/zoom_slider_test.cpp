#include "tests/nav3d/zoom_fixture.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/toolkit/lookup.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

// Creation

TEST_F(ZoomSliderTest, RunsOverTheLensesWithTheirTicks) {
    EXPECT_EQ(widget().lowest(), 0);
    EXPECT_EQ(widget().highest(), 2500);
    EXPECT_EQ(widget().ticks(),
              (std::vector<int>{0, 150, 200, 240, 280, 350, 500, 850, 1350, 2000, 2500}));
}

TEST_F(ZoomSliderTest, AddsTwoBitsToTheStyleThatItWasCreatedWith) {
    auto* object = dynamic_cast<CQrUiProgSliderCtrl*>(CWnd::FromHandle(slider()));
    EXPECT_EQ(object->GetControlStyle(), 22U);
}

TEST_F(ZoomSliderTest, PartsBearTheirIds) {
    EXPECT_EQ(bench().windows().find(window())->id, 101);
    EXPECT_EQ(bench().windows().find(slider())->id, 5004);
    EXPECT_EQ(bench().windows().find(field("edit"))->id, 10001);
    EXPECT_EQ(bench().windows().find(field("edit2"))->id, 10002);
}

TEST_F(ZoomSliderTest, ItemAndFieldsBearTheirTexts) {
    const workbench::ItemView icon =
        workbench::viewOf(bench().toolkit(), *item(L"TPB_3DNAV_SLIDERCONTROL1"));
    EXPECT_EQ(icon.image, "RCDATA_3DNAV_SLIDERCONTROL1");
    EXPECT_EQ(icon.name, stringOf(1245));
    EXPECT_EQ(tipOf(field("edit")), stringOf(1241));
    EXPECT_EQ(tipOf(field("edit2")), stringOf(1243));
}

TEST_F(ZoomSliderTest, PartsAreMadeInTheOrderOfTheRow) {
    takeJournal();
    rebuildControl();
    const std::vector<std::string> made = takeCallLines(
        {"CQrUiProgSliderCtrl::Create", "CQrUiInputEditCtrl::Create", "CWnd::EnableWindow"});
    const std::vector<std::string> expected{
        "CQrUiProgSliderCtrl::Create(1342177280, object, 5004, 2)",
        "CQrUiInputEditCtrl::Create(1350631552, object, 10001, 0)",
        "CQrUiInputEditCtrl::Create(1350631552, object, 10002, 0)",
        "CWnd::EnableWindow(\"CQrUiInputEditCtrl\", 1)"};
    EXPECT_NE(std::search(made.begin(), made.end(), expected.begin(), expected.end()), made.end());
    const auto& row = *dynamic_cast<CQrUiToolPanel*>(CWnd::FromHandle(window()));
    ASSERT_EQ(row.GetToolPanelItemCount(), 6);
    EXPECT_EQ(row.GetToolPanelItem(0)->GetID(), L"TPB_3DNAV_SLIDERCONTROL1");
    EXPECT_EQ(row.GetToolPanelItem(1)->GetControl(), slider());
    EXPECT_EQ(row.GetToolPanelItem(3)->GetControl(), field("edit"));
    EXPECT_EQ(row.GetToolPanelItem(5)->GetControl(), field("edit2"));
}

TEST_F(ZoomSliderTest, SliderIsMadeAsLargeAsTheControl) {
    const CRect whole = firstRectOf(window());
    ASSERT_NE(whole.Width(), 0);
    EXPECT_EQ(firstRectOf(slider()), (CRect{0, 0, whole.Width(), whole.Height()}));
}

class ZoomAnswerTest : public ZoomSliderTest, public testing::WithParamInterface<UINT> {};

TEST_P(ZoomAnswerTest, IsZero) {
    constexpr WPARAM kNoField = 4711;
    EXPECT_EQ(send(GetParam(), kNoField, reinterpret_cast<LPARAM>(L"CVPORT")), 0);
    EXPECT_EQ(send(GetParam(), 10001, reinterpret_cast<LPARAM>(slider())), 0);
}

INSTANTIATE_TEST_SUITE_P(Messages, ZoomAnswerTest,
                         testing::Values(WM_IDLEUPDATECMDUI, 1534, 1735, 1738));

TEST_F(ZoomSliderTest, MessagesOfTheHostAreAnsweredZero) {
    EXPECT_EQ(send(1726), 0);
    EXPECT_EQ(send(1727, 1, reinterpret_cast<LPARAM>(L"CVPORT")), 0);
    EXPECT_EQ(send(1727, 1, reinterpret_cast<LPARAM>(L"LTSCALE")), 0);
    EXPECT_EQ(send(1730, 0, reinterpret_cast<LPARAM>(L"LINE")), 0);
    EXPECT_EQ(send(1736), 0);
}

TEST_F(ZoomSliderTest, IdleTicksLeaveItAloneUntilACommandEnds) {
    rebuildControl();
    idle();
    EXPECT_EQ(position(), 0);
    EXPECT_EQ(text("edit"), L"");
    endACommand();
    EXPECT_EQ(position(), 500);
    setLens(85.0);
    idle();
    EXPECT_EQ(position(), 850);
}

TEST_F(ZoomSliderTest, IdleTicksWithoutADatabaseDoNothing) {
    endACommand();
    setLens(85.0);
    fail("vxdbHostApplicationServices");
    takeJournal();
    send(WM_IDLEUPDATECMDUI);
    EXPECT_EQ(takeCalls(), std::vector<std::string>{"vxdbHostApplicationServices"});
    EXPECT_EQ(position(), 500);
}

TEST_F(ZoomSliderTest, IdleTicksBeforeTheFirstCommandUpdateTheToolbarAlone) {
    rebuildControl();
    takeJournal();
    send(WM_IDLEUPDATECMDUI);
    const std::vector<std::string> made = takeCalls();
    EXPECT_EQ(std::count(made.begin(), made.end(), "vxgsGetLensLength"), 0);
    EXPECT_EQ(std::count(made.begin(), made.end(), "VxDbDatabase::cameraDisplay"), 1);
}

TEST_F(ZoomSliderTest, IdleTicksOfAHiddenDashboardReadNothing) {
    endACommand();
    paletteSet()->ShowWindow(SW_HIDE);
    takeJournal();
    send(WM_IDLEUPDATECMDUI);
    EXPECT_EQ(takeCallLines({"vxgsGetLensLength", "OrbitInProgress", "VxDbDatabase::cameraDisplay",
                             "vxedGetVar"}),
              std::vector<std::string>{});
}

TEST_F(ZoomSliderTest, ClickOnTheIconGoesToTheLensField) {
    clickIcon();
    EXPECT_TRUE(hasFocus(field("edit")));
    leave();
}

// Following the view

TEST_F(ZoomSliderTest, ShowsTheLensThatWasReadAndNotTheSlidersStep) {
    setLens(37.25);
    announce(L"CVPORT");
    EXPECT_EQ(position(), 370);
    EXPECT_EQ(text("edit"), L"37.25");
}

TEST_F(ZoomSliderTest, TipShowsLensAndAngleAndComesUp) {
    setLens(35.0);
    workbench::gestures::hoverAt(bench().toolkit(), slider(), {5, 5});
    takeJournal();
    tellOf(L"CVPORT");
    const std::wstring tip = filled(1242, {L"35.00"}) + L"\n" + filled(1244, {text("edit2")});
    EXPECT_EQ(tipOf(slider()), tip);
    EXPECT_EQ(takeTexts("tip"), std::vector<std::string>{workbench::toUtf8(tip)});
}

TEST_F(ZoomSliderTest, AngleIsShownWithTheDrawingsPrecision) {
    set(L"AUPREC", 3);
    EXPECT_EQ(text("edit2"), L"39.598");
    EXPECT_NE(tipOf(slider()).find(L"39.598"), std::wstring::npos);
    set(L"AUPREC", 0);
    EXPECT_EQ(text("edit2"), L"40");
}

TEST_F(ZoomSliderTest, LensIsAskedOfTheViewportInWhichTheUserWorks) {
    tellOf(L"CVPORT");
    EXPECT_EQ(takeCallLines({"vxgsGetLensLength"}),
              std::vector<std::string>{"vxgsGetLensLength(2)"});
}

TEST_F(ZoomSliderTest, WithoutAViewportTheControlsStayAsTheyAre) {
    setLens(28.0);
    loseViewport();
    takeJournal();
    tellOf(L"CVPORT");
    EXPECT_EQ(position(), 500);
    EXPECT_EQ(text("edit"), L"50.00");
    EXPECT_EQ(takeCallLines({"vxgsGetLensLength"}), std::vector<std::string>{});
}

class ZoomFollowingTest : public ZoomSliderTest, public testing::WithParamInterface<UINT> {};

TEST_P(ZoomFollowingTest, RefreshesUnlessTheDashboardIsHidden) {
    setLens(28.0);
    send(GetParam());
    EXPECT_EQ(position(), 280);
    setLens(35.0);
    paletteSet()->ShowWindow(SW_HIDE);
    takeJournal();
    send(GetParam());
    EXPECT_EQ(position(), 280);
    EXPECT_EQ(takeCalls(), std::vector<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(Messages, ZoomFollowingTest, testing::Values(1726, 1730, 1736));

TEST_F(ZoomSliderTest, CancelledCommandRefreshesNothing) {
    setLens(28.0);
    takeJournal();
    send(1731, 0, reinterpret_cast<LPARAM>(L"LINE"));
    EXPECT_EQ(takeCalls(), std::vector<std::string>{});
}

TEST_F(ZoomSliderTest, ALensBeyondTheLongestStandsAtTheEnd) {
    setLens(100000.1);
    announce(L"CVPORT");
    EXPECT_EQ(position(), 2500);
}

class ZoomVariableTest : public ZoomSliderTest,
                         public testing::WithParamInterface<const wchar_t*> {};

TEST_P(ZoomVariableTest, Refreshes) {
    setLens(28.0);
    announce(GetParam());
    EXPECT_EQ(position(), 280);
}

INSTANTIATE_TEST_SUITE_P(Names, ZoomVariableTest,
                         testing::Values(L"CVPORT", L"TILEMODE", L"PERSPECTIVE", L"LUPREC",
                                         L"LUNITS", L"AUPREC", L"AUNITS", L"DASHBOARDSTATE"));

class OtherVariableTest : public ZoomSliderTest,
                          public testing::WithParamInterface<const wchar_t*> {};

TEST_P(OtherVariableTest, ChangesNothing) {
    setLens(28.0);
    announce(GetParam());
    EXPECT_EQ(position(), 500);
}

INSTANTIATE_TEST_SUITE_P(Names, OtherVariableTest,
                         testing::Values(L"STEPSIZE", L"cvport", L"Perspective"));

TEST_F(ZoomSliderTest, ParallelViewDisablesAllParts) {
    set(L"PERSPECTIVE", 0);
    EXPECT_FALSE(isEnabled(slider()));
    EXPECT_FALSE(isEnabled(field("edit")));
    EXPECT_FALSE(isEnabled(field("edit2")));
    set(L"PERSPECTIVE", 1);
    EXPECT_TRUE(isEnabled(slider()));
    EXPECT_TRUE(isEnabled(field("edit")));
    EXPECT_TRUE(isEnabled(field("edit2")));
}

TEST_F(ZoomSliderTest, NothingIsReadFromAParallelView) {
    set(L"PERSPECTIVE", 0);
    takeJournal();
    tellOf(L"CVPORT");
    for (const std::string& call :
         takeCallLines({"vxedGetVar", "vxgsGetLensLength", "vxgsGetGsView", "CWnd::SetWindowText"}))
        EXPECT_EQ(call, "vxedGetVar(\"PERSPECTIVE\")");
}

TEST_F(ZoomSliderTest, SliderAloneTellsWhetherThePartsAreEnabled) {
    bench().windows().state().enable(field("edit"), false);
    takeJournal();
    tellOf(L"CVPORT");
    EXPECT_EQ(takeCallLines({"CWnd::EnableWindow"}), std::vector<std::string>{});
    EXPECT_FALSE(isEnabled(field("edit")));
    bench().windows().state().enable(slider(), false);
    tellOf(L"CVPORT");
    EXPECT_EQ(takeCallLines({"CWnd::EnableWindow"}),
              (std::vector<std::string>{"CWnd::EnableWindow(\"CQrUiProgSliderCtrl\", 1)",
                                        "CWnd::EnableWindow(\"CQrUiInputEditCtrl\", 1)",
                                        "CWnd::EnableWindow(\"CQrUiInputEditCtrl\", 1)"}));
    EXPECT_TRUE(isEnabled(field("edit")));
}

TEST_F(ZoomSliderTest, HiddenDashboardIsNotRefreshed) {
    paletteSet()->ShowWindow(SW_HIDE);
    takeCalls();
    announce(L"CVPORT");
    EXPECT_EQ(takeCount("vxgsGetLensLength"), 0U);
}

TEST_F(ZoomSliderTest, UnreadableLensLeavesTheControlsAsTheyAre) {
    setLens(28.0);
    fail("vxgsGetLensLength");
    announce(L"CVPORT");
    EXPECT_EQ(position(), 500);
    EXPECT_EQ(text("edit"), L"50.00");
}

TEST_F(ZoomSliderTest, SliderIsNotTouchedWhileItStandsRight) {
    takeCalls();
    announce(L"CVPORT");
    EXPECT_EQ(takeCount("CQrUiProgSliderCtrl::SetSliderPos"), 0U);
}

// Drags

TEST_F(ZoomSliderTest, DragSetsTheLensRecordsEachStepAndTellsTheHost) {
    takeCalls();
    drag({600, 700});
    const std::vector<std::string> made = takeCalls();
    EXPECT_EQ(std::count(made.begin(), made.end(), "vxgsWriteViewToUndoController"), 2);
    EXPECT_EQ(std::count(made.begin(), made.end(), "vxedSendViewChanged"), 2);
    EXPECT_EQ(std::count(made.begin(), made.end(), "VxViewMgrDlg::viewComboClear"), 2);
    EXPECT_DOUBLE_EQ(lens(), 70.0);
    EXPECT_EQ(text("edit"), L"70.00");
    release();
}

TEST_F(ZoomSliderTest, DragShowsTheLensOnceTheHostHasBeenTold) {
    takeJournal();
    drag({600});
    const std::vector<std::string> steps =
        takeCallLines({"VxViewMgrDlg::viewComboClear", "CQrUiProgSliderCtrl::ShowToolTip"});
    const auto told =
        std::find(steps.begin(), steps.end(), std::string("VxViewMgrDlg::viewComboClear()"));
    ASSERT_NE(told, steps.end());
    EXPECT_EQ(std::vector<std::string>(told + 1, steps.end()),
              std::vector<std::string>{"CQrUiProgSliderCtrl::ShowToolTip()"});
    EXPECT_EQ(tipOf(slider()), filled(1242, {L"60.00"}) + L"\n" + filled(1244, {text("edit2")}));
    release();
}

TEST_F(ZoomSliderTest, AnotherSlidersMessageIsIgnored) {
    takeJournal();
    send(1534, 600, reinterpret_cast<LPARAM>(field("edit")));
    send(1534, 600, 0);
    EXPECT_EQ(takeCalls(), std::vector<std::string>{});
}

TEST_F(ZoomSliderTest, PositionIsOfSixteenBits) {
    send(1534, 0x70000 | 600, reinterpret_cast<LPARAM>(slider()));
    EXPECT_DOUBLE_EQ(lens(), 60.0);
}

TEST_F(ZoomSliderTest, DragNeverSetsTheSliderAndNeitherDoesWhatItSetsOff) {
    takeJournal();
    drag({1555});
    EXPECT_EQ(takeCallLines({"CQrUiProgSliderCtrl::SetSliderPos"}),
              std::vector<std::string>{"CQrUiProgSliderCtrl::SetSliderPos(1550)"})
        << "the host's event alone brings the position that stands for the lens";
    release();
}

TEST_F(ZoomSliderTest, PositionZeroShowsTheShortestLensAndStandsAtEightAfterAnIdleRefresh) {
    endACommand();
    drag({0});
    EXPECT_DOUBLE_EQ(lens(), 0.786);
    release();
    idle();
    EXPECT_EQ(position(), 8);
}

TEST_F(ZoomSliderTest, PositionOfTheRightEndIsTheLongestLens) {
    drag({2500});
    EXPECT_EQ(lens(), 100000.0);
    release();
}

TEST_F(ZoomSliderTest, DragInALockedViewportStillChangesTheView) {
    lockViewport();
    drag({850});
    EXPECT_DOUBLE_EQ(lens(), 85.0);
    release();
}

TEST_F(ZoomSliderTest, EachStepIsRecordedAndADragUndoneAsAWhole) {
    const double before = lens();
    takeCalls();
    drag({600, 700});
    release();
    EXPECT_EQ(takeCount("vxgsWriteViewToUndoController"), 2U);
    type(L"U\n");
    EXPECT_DOUBLE_EQ(lens(), before);
    takeSent();
}

// While a navigation tool runs

class ZoomByToolTest : public ZoomSliderTest {
protected:
    void SetUp() override {
        ZoomSliderTest::SetUp();
        startTool();
    }
};

TEST_F(ZoomByToolTest, TheModuleSetsTheLens) {
    drag({350});
    EXPECT_DOUBLE_EQ(lens(), 35.0);
    EXPECT_EQ(takeCount("vxgsSetLensLength"), 0U);
    release();
}

TEST_F(ZoomByToolTest, WithoutTheModuleOnlyTheUndoIsRecorded) {
    bench().faults().hide("VxVmTools.qlx");
    drag({350});
    const std::vector<std::string> made = takeCalls();
    EXPECT_EQ(std::count(made.begin(), made.end(), "vxgsWriteViewToUndoController"), 1);
    EXPECT_EQ(std::count(made.begin(), made.end(), "vxedSendViewChanged"), 0);
    EXPECT_DOUBLE_EQ(lens(), 50.0);
    release();
}

TEST_F(ZoomByToolTest, WithoutTheFunctionTheHostIsStillTold) {
    bench().faults().hide("VxVmTools.qlx", "navUpdateLensLength");
    drag({350});
    EXPECT_EQ(takeCount("vxedSendViewChanged"), 1U);
    EXPECT_DOUBLE_EQ(lens(), 50.0);
    release();
}

}  // namespace
