#include "tests/nav3d/nav_fixture.h"

#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

class ZoomSliderTest : public NavControlTest {
protected:
    void SetUp() override {
        showControl("3DNavZoomSliderControl");
        set(L"PERSPECTIVE", 1);
        set(L"LUPREC", 2);
        setLens(50.0);
        announce(L"CVPORT");
        journal();
    }

    void setLens(double lens) { setDbQuietly("viewports.current.lens", lens); }
    double lens() { return db("viewports.current.lens").asReal(); }
    /// Goes to a locked viewport of a layout; a tile of model space has no lock.
    void lockViewport() {
        openDrawing("examples/house.json");
        set(L"TILEMODE", 0);
        set(L"CVPORT", 2);
        set(L"PERSPECTIVE", 1);
        setDb("viewports.current.locked", true);
    }
    void endACommand() {
        begin(L"LINE");
        finish();
    }
    const workbench::SliderWidget& widget() {
        return *dynamic_cast<workbench::SliderWidget*>(
            bench().windows().find(slider())->widget.get());
    }
};

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
    const workbench::ItemView icon = workbench::viewOf(*item(L"TPB_3DNAV_SLIDERCONTROL1"));
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
    calls();
    announce(L"CVPORT");
    EXPECT_EQ(count("vxgsGetLensLength"), 0U);
    set(L"PERSPECTIVE", 1);
    EXPECT_TRUE(isEnabled(slider()));
    EXPECT_TRUE(isEnabled(field("edit2")));
}

TEST_F(ZoomSliderTest, HiddenDashboardIsNotRefreshed) {
    paletteSet()->ShowWindow(SW_HIDE);
    calls();
    announce(L"CVPORT");
    EXPECT_EQ(count("vxgsGetLensLength"), 0U);
}

TEST_F(ZoomSliderTest, UnreadableLensLeavesTheControlsAsTheyAre) {
    setLens(28.0);
    fail("vxgsGetLensLength");
    announce(L"CVPORT");
    EXPECT_EQ(position(), 500);
    EXPECT_EQ(text("edit"), L"50.00");
}

TEST_F(ZoomSliderTest, SliderIsNotTouchedWhileItStandsRight) {
    calls();
    announce(L"CVPORT");
    EXPECT_EQ(count("CQrUiProgSliderCtrl::SetSliderPos"), 0U);
}

// Drags

TEST_F(ZoomSliderTest, DragSetsTheLensRecordsEachStepAndTellsTheHost) {
    calls();
    drag({600, 700});
    const std::vector<std::string> made = calls();
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
    sent();
}

// Entries

TEST_F(ZoomSliderTest, EnteredLensIsApplied) {
    enter(L"35");
    EXPECT_DOUBLE_EQ(lens(), 35.0);
    EXPECT_EQ(position(), 350);
    EXPECT_EQ(text("edit"), L"35.00");
    leave();
    EXPECT_EQ(lens(), 35.0);
}

TEST_F(ZoomSliderTest, LeavingAfterEnterCommitsNothingMore) {
    enter(L"35");
    calls();
    leave();
    EXPECT_EQ(count("vxgsSetLensLength"), 0U);
}

TEST_F(ZoomSliderTest, EmptyEntryRestoresTheTextWithoutABalloon) {
    enter(L"   ");
    EXPECT_EQ(text("edit"), L"50.00");
    EXPECT_EQ(balloon(), "");
    leave();
}

TEST_F(ZoomSliderTest, LockedViewportIsToldAndTheTextRestored) {
    lockViewport();
    const double before = lens();
    const std::wstring shown = text("edit");
    enter(L"77");
    EXPECT_EQ(text("edit"), shown);
    EXPECT_EQ(balloon(), string(1231));
    EXPECT_DOUBLE_EQ(lens(), before);
    leave();
}

TEST_F(ZoomSliderTest, UnreadableViewportCountsAsLocked) {
    put(L"35");
    fail("vxedGetVar:CVPORT");
    press("enter");
    EXPECT_NE(balloon(), "");
    EXPECT_EQ(text("edit"), L"50.00");
    leave();
}

TEST_F(ZoomSliderTest, TextThatIsNoNumberIsRefusedAndTheFieldKeepsTheFocus) {
    enter(L"wide");
    EXPECT_EQ(balloon(), string(1246));
    EXPECT_EQ(text("edit"), L"50.00");
    EXPECT_TRUE(hasFocus(field("edit")));
    leave();
}

struct RefusedCase {
    const char* field;
    const wchar_t* text;
    const char* least;
    const char* most;
};
class RefusedEntryTest : public ZoomSliderTest, public testing::WithParamInterface<RefusedCase> {};

TEST_P(RefusedEntryTest, NamesTheLimitsAndGivesTheFieldBack) {
    const std::wstring before = text(GetParam().field);
    enter(GetParam().text, GetParam().field);
    const std::string told = balloon();
    EXPECT_NE(told.find(GetParam().least), std::string::npos) << told;
    EXPECT_NE(told.find(GetParam().most), std::string::npos) << told;
    EXPECT_EQ(text(GetParam().field), before);
    EXPECT_TRUE(hasFocus(field(GetParam().field)));
    EXPECT_DOUBLE_EQ(lens(), 50.0);
    leave();
}

// The lower limit of the lens stands without its leading zero.
INSTANTIATE_TEST_SUITE_P(Entries, RefusedEntryTest,
                         testing::Values(RefusedCase{"edit", L"0.78", " .786 ", "100,000"},
                                         RefusedCase{"edit", L"100000.1", " .786 ", "100,000"},
                                         RefusedCase{"edit", L"-5", " .786 ", "100,000"},
                                         RefusedCase{"edit2", L"0.004", "0.005", "175"},
                                         RefusedCase{"edit2", L"175.1", "0.005", "175"}));

struct TakenCase {
    const char* field;
    const wchar_t* text;
    double lens;
};
class TakenEntryTest : public ZoomSliderTest, public testing::WithParamInterface<TakenCase> {};

TEST_P(TakenEntryTest, SetsTheLens) {
    set(L"LUPREC", 4);
    enter(GetParam().text, GetParam().field);
    EXPECT_NEAR(lens(), GetParam().lens, GetParam().lens * 1.0e-5);
    EXPECT_EQ(balloon(), "");
    leave();
}

INSTANTIATE_TEST_SUITE_P(
    Entries, TakenEntryTest,
    testing::Values(TakenCase{"edit", L"0.786", 0.786}, TakenCase{"edit", L"100000", 100000.0},
                    TakenCase{"edit", L" 24 ", 24.0}, TakenCase{"edit", L"2.4e1", 24.0},
                    TakenCase{"edit2", L"90", 18.0}, TakenCase{"edit2", L"175", 0.785897},
                    TakenCase{"edit2", L"0.005", 412529.6}));

class NoNumberTest : public ZoomSliderTest, public testing::WithParamInterface<std::wstring> {};

TEST_P(NoNumberTest, IsToldAndChangesNothingInEitherField) {
    for (const char* part : {"edit", "edit2"}) {
        const std::wstring before = text(part);
        enter(GetParam(), part);
        EXPECT_EQ(balloon(), string(1246)) << part;
        EXPECT_EQ(text(part), before);
        leave();
    }
    EXPECT_DOUBLE_EQ(lens(), 50.0);
}

INSTANTIATE_TEST_SUITE_P(Entries, NoNumberTest,
                         testing::Values(L"1,5", L"1.5mm", L"3 5", L"--5", L"1e999",
                                         L"\u0663\u0665", L"\uff13\uff15",
                                         std::wstring(10000, L'x')));

TEST_F(ZoomSliderTest, AngleIsReadInDegreesWhateverTheUnitItIsShownIn) {
    constexpr int kRadians = 3;
    set(L"AUNITS", kRadians);
    EXPECT_EQ(text("edit2").back(), L'r');
    enter(L"90", "edit2");
    EXPECT_NEAR(lens(), 18.0, 1.0e-9);
    EXPECT_EQ(text("edit2").back(), L'r');
    leave();
}

TEST_F(ZoomSliderTest, EntryInAParallelViewIsTakenAndChangesNothing) {
    put(L"35");
    bench().faults().fail("vxedGetVar:PERSPECTIVE");
    press("enter");
    EXPECT_DOUBLE_EQ(lens(), 50.0);
    EXPECT_EQ(balloon(), "");
    bench().faults().unfail("vxedGetVar:PERSPECTIVE");
    press("escape");
    leave();
}

TEST_F(ZoomSliderTest, EscapeBringsTheLastAcceptedTextBackAndKeepsTheFocus) {
    put(L"35");
    press("escape");
    EXPECT_EQ(text("edit"), L"50.00");
    EXPECT_TRUE(hasFocus(field("edit")));
    leave();
    EXPECT_DOUBLE_EQ(lens(), 50.0);
}

TEST_F(ZoomSliderTest, IdleTicksDoNotOverwriteWhatTheUserTypes) {
    endACommand();
    put(L"3");
    idle();
    EXPECT_EQ(text("edit"), L"3");
    press("escape");
    leave();
    setLens(28.0);
    idle();
    EXPECT_EQ(text("edit"), L"28.00");
}

TEST_F(ZoomSliderTest, BalloonGoesWithTheNextEntryThatCanBeRead) {
    enter(L"wide");
    EXPECT_EQ(texts("balloon").size(), 1U);
    calls();
    enter(L"35");
    EXPECT_EQ(count("QrUiHideBalloonTip"), 1U);
    leave();
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
    EXPECT_EQ(count("vxgsSetLensLength"), 0U);
    release();
}

TEST_F(ZoomByToolTest, WithoutTheModuleOnlyTheUndoIsRecorded) {
    bench().faults().hide("VxVmTools.qlx");
    drag({350});
    const std::vector<std::string> made = calls();
    EXPECT_EQ(std::count(made.begin(), made.end(), "vxgsWriteViewToUndoController"), 1);
    EXPECT_EQ(std::count(made.begin(), made.end(), "vxedSendViewChanged"), 0);
    EXPECT_DOUBLE_EQ(lens(), 50.0);
    release();
}

TEST_F(ZoomByToolTest, WithoutTheFunctionTheHostIsStillTold) {
    bench().faults().hide("VxVmTools.qlx", "navUpdateLensLength");
    drag({350});
    EXPECT_EQ(count("vxedSendViewChanged"), 1U);
    EXPECT_DOUBLE_EQ(lens(), 50.0);
    release();
}

}  // namespace
