#include "tests/nav3d/zoom_fixture.h"

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

TEST_F(ZoomSliderTest, ParallelViewDisablesAllPartsAndReadsNoView) {
    set(L"PERSPECTIVE", 0);
    EXPECT_FALSE(isEnabled(slider()));
    EXPECT_FALSE(isEnabled(field("edit")));
    EXPECT_FALSE(isEnabled(field("edit2")));
    takeCalls();
    announce(L"CVPORT");
    EXPECT_EQ(takeCount("vxgsGetLensLength"), 0U);
    set(L"PERSPECTIVE", 1);
    EXPECT_TRUE(isEnabled(slider()));
    EXPECT_TRUE(isEnabled(field("edit2")));
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

TEST_F(ZoomSliderTest, EachStepCanBeUndone) {
    drag({600, 700});
    release();
    type(L"U\n");
    EXPECT_NEAR(lens(), 60.0, 1.0e-9);
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
