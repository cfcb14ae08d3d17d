#include "tests/support/control_bench.h"

#include "workbench/base/text.h"
#include "workbench/editor/editor.h"
#include "workbench/gestures/item_gestures.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/gestures/slider_gestures.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

using workbench::Value;

constexpr const char* kControl = "LayerLockTransparencySliderControl";
constexpr const wchar_t* kVariable = L"LAYLOCKFADECTL";

/// Messages by their numbers.
constexpr std::int64_t kSysVarChanged = 1727;
constexpr std::int64_t kSliderMoved = 1534;

class FadeSliderTest : public support::ControlBench {
protected:
    void SetUp() override { showControl(kControl); }

    HWND edit() { return field(); }
    void clickButton() { clickIcon(); }
    std::string buttonImage() {
        return workbench::viewOf(bench().toolkit(), *item(L"TPB_LAYER_SLIDERCONTROL1")).image;
    }
    /// How often the variable was written by the module since the last look at the journal.
    std::size_t writes() { return takeCount("vxedSetVar"); }
    int fade() { return static_cast<int>(var(kVariable).asInteger()); }
};

// Creation

TEST_F(FadeSliderTest, ShowsTheVariableAfterCreation) {
    EXPECT_EQ(fade(), 50);
    EXPECT_EQ(position(), 50);
    EXPECT_EQ(text(), L"      50%");
    EXPECT_TRUE(isEnabled(slider()));
    EXPECT_TRUE(isEnabled(edit()));
}

TEST_F(FadeSliderTest, RunsFromZeroToNinetyByOnes) {
    const auto* widget =
        dynamic_cast<workbench::SliderWidget*>(bench().windows().find(slider())->widget.get());
    EXPECT_EQ(widget->lowest(), 0);
    EXPECT_EQ(widget->highest(), 90);
    EXPECT_EQ(widget->lineSize(), 1);
    EXPECT_EQ(widget->ticks(), std::vector<int>{0});
}

TEST_F(FadeSliderTest, PartsBearTheirIds) {
    EXPECT_EQ(bench().windows().find(window())->id, 601);
    EXPECT_EQ(bench().windows().find(slider())->id, 10001);
    EXPECT_EQ(bench().windows().find(edit())->id, 10001);
}

TEST_F(FadeSliderTest, ButtonHasItsPictureAndName) {
    const workbench::ItemView button =
        workbench::viewOf(bench().toolkit(), *item(L"TPB_LAYER_SLIDERCONTROL1"));
    EXPECT_EQ(button.image, "RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_ON");
    EXPECT_FALSE(button.name.empty());
}

TEST_F(FadeSliderTest, ButtonSliderAndEditHaveATipEach) {
    EXPECT_EQ(workbench::viewOf(bench().toolkit(), *item(L"TPB_LAYER_SLIDERCONTROL1")).name,
              stringOf(3995));
    EXPECT_EQ(tipOf(slider()), stringOf(3996));
    EXPECT_EQ(tipOf(edit()), stringOf(3997));
}

class FadeSliderCreationTest : public support::Bench {
protected:
    bool hasControl() { return control(kControl) != nullptr; }
};

TEST_F(FadeSliderCreationTest, UnreadableVariableShowsAsOneAndOff) {
    fail("vxedGetVar:LAYLOCKFADECTL");
    showDashboard();
    const HWND slider = part(control(kControl), "slider");
    const HWND edit = part(control(kControl), "edit");
    EXPECT_EQ(bench().windows().find(edit)->text, L"       1%");
    EXPECT_FALSE(bench().windows().takesInput(slider));
    EXPECT_FALSE(bench().windows().takesInput(edit));
    EXPECT_EQ(workbench::viewOf(bench().toolkit(), *item(L"TPB_LAYER_SLIDERCONTROL1")).image,
              "RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_OFF");
}

TEST_F(FadeSliderCreationTest, FailedSliderDropsTheControlFromItsPanel) {
    fail("CQrUiProgSliderCtrl::Create");
    showDashboard();
    EXPECT_FALSE(hasControl());
    EXPECT_NE(panel(L"Layers"), nullptr);
}

TEST_F(FadeSliderCreationTest, FailedEditLeavesSliderAlone) {
    fail("CQrUiInputEditCtrl::Create");
    showDashboard();
    ASSERT_TRUE(hasControl());
    EXPECT_NE(part(control(kControl), "slider"), nullptr);
    EXPECT_EQ(part(control(kControl), "edit"), nullptr);
}

// Gestures

TEST_F(FadeSliderTest, DragShowsAtOnceAndWritesOnceItHasRested) {
    drag({40});
    EXPECT_EQ(text(), L"      40%");
    wait(150);
    EXPECT_EQ(fade(), 50);
    wait(150);
    EXPECT_EQ(fade(), 40);
    EXPECT_EQ(writes(), 1U);
    EXPECT_EQ(position(), 40);
}

TEST_F(FadeSliderTest, ThreeQuickMovesWriteOnceAtTheLastPosition) {
    drag({10});
    wait(40);
    drag({20});
    wait(40);
    drag({30});
    wait(149);
    EXPECT_EQ(writes(), 0U);
    wait(151);
    EXPECT_EQ(fade(), 30);
    EXPECT_EQ(writes(), 1U);
}

TEST_F(FadeSliderTest, LongDragWritesOnlyAfterItsEnd) {
    for (int place = 10; place <= 90; place += 10) {
        drag({place});
        wait(100);
    }
    EXPECT_EQ(writes(), 0U);
    wait(300);
    EXPECT_EQ(fade(), 90);
    EXPECT_EQ(writes(), 1U);
}

TEST_F(FadeSliderTest, MoveDoesNotRestartTheTimer) {
    drag({60});
    wait(149);
    drag({61});
    wait(1);
    EXPECT_EQ(writes(), 0U) << "the first firing only sees that the thumb moved";
    wait(150);
    EXPECT_EQ(fade(), 61);
}

TEST_F(FadeSliderTest, OwnWriteComesBackAndChangesNothing) {
    drag({40});
    release();
    wait(300);
    EXPECT_EQ(fade(), 40);
    const std::vector<std::int64_t> messages = takeMessagesOf(kControl);
    EXPECT_NE(std::find(messages.begin(), messages.end(), kSysVarChanged), messages.end());
    EXPECT_EQ(writes(), 1U);
    EXPECT_EQ(position(), 40);
}

TEST_F(FadeSliderTest, ForeignSliderIsIgnored) {
    bench().windows().send(window(), static_cast<UINT>(kSliderMoved), 20,
                           reinterpret_cast<LPARAM>(window()));
    EXPECT_EQ(text(), L"      50%");
    wait(400);
    EXPECT_EQ(writes(), 0U);
}

TEST_F(FadeSliderTest, AnotherTimerNeitherWritesNorCountsAsRest) {
    constexpr WPARAM kOtherTimer = 2;
    drag({40});
    wait(100);
    bench().windows().send(window(), WM_TIMER, kOtherTimer, 0);
    wait(50);
    bench().windows().send(window(), WM_TIMER, kOtherTimer, 0);
    wait(149);
    EXPECT_EQ(writes(), 0U);
    wait(1);
    EXPECT_EQ(fade(), 40);
    EXPECT_EQ(writes(), 1U);
}

TEST_F(FadeSliderTest, ClickAtNinetySwitchesOffAndBackOn) {
    set(kVariable, 90);
    clickButton();
    EXPECT_EQ(fade(), -90);
    EXPECT_EQ(position(), 90);
    EXPECT_FALSE(isEnabled(slider()));
    EXPECT_FALSE(isEnabled(edit()));
    EXPECT_EQ(buttonImage(), "RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_OFF");
    EXPECT_EQ(text(), L"      90%");
    clickButton();
    EXPECT_EQ(fade(), 90);
    EXPECT_TRUE(isEnabled(slider()));
    EXPECT_EQ(buttonImage(), "RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_ON");
}

TEST_F(FadeSliderTest, ValueZeroShowsZeroPercentWithTheControlsEnabled) {
    set(kVariable, 0);
    EXPECT_EQ(text(), L"       0%");
    EXPECT_EQ(position(), 0);
    EXPECT_TRUE(isEnabled(slider()));
    EXPECT_TRUE(isEnabled(edit()));
}

TEST_F(FadeSliderTest, ClickAtZeroSwitchesOnAtFifty) {
    set(kVariable, 0);
    clickButton();
    EXPECT_EQ(fade(), 50);
    EXPECT_EQ(position(), 50);
}

// Host changes

TEST_F(FadeSliderTest, FollowsAChangeFromTheCommandLineWithoutWriting) {
    type(L"LAYLOCKFADECTL\n25\n");
    EXPECT_EQ(position(), 25);
    EXPECT_EQ(text(), L"      25%");
    EXPECT_EQ(writes(), 0U);
}

TEST_F(FadeSliderTest, UnreadableVariableAtAChangeShowsAsOneAndOff) {
    fail("vxedGetVar:LAYLOCKFADECTL");
    bench().editor().reactors().sysVarChanged(kVariable, true);
    EXPECT_EQ(text(), L"       1%");
    EXPECT_EQ(position(), 1);
    EXPECT_FALSE(isEnabled(slider()));
    EXPECT_FALSE(isEnabled(edit()));
    EXPECT_EQ(buttonImage(), "RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_OFF");
    EXPECT_EQ(writes(), 0U);
}

TEST_F(FadeSliderTest, VariableNameIsExact) {
    bench().windows().send(window(), static_cast<UINT>(kSysVarChanged), 1,
                           reinterpret_cast<LPARAM>(L"laylockfadectl"));
    EXPECT_EQ(takeCalls(), std::vector<std::string>{});
    bench().windows().send(window(), static_cast<UINT>(kSysVarChanged), 1,
                           reinterpret_cast<LPARAM>(L"LAYLOCKFADECTL"));
    EXPECT_EQ(takeCalls(), std::vector<std::string>{"vxedGetVar"});
}

TEST_F(FadeSliderTest, IsDisabledWhileACommandRuns) {
    begin(L"LINE");
    EXPECT_FALSE(isEnabled(window()));
    finish("ended");
    EXPECT_TRUE(isEnabled(window()));
    begin(L"LINE");
    finish("cancelled");
    EXPECT_TRUE(isEnabled(window()));
}

TEST_F(FadeSliderTest, StaysDisabledAfterAFailedCommandUntilTheNextEnds) {
    begin(L"LINE");
    finish("failed");
    EXPECT_FALSE(isEnabled(window()));
    begin(L"LINE");
    finish("ended");
    EXPECT_TRUE(isEnabled(window()));
}

TEST_F(FadeSliderTest, EndOfACommandBringsTheButtonUpToDate) {
    set(kVariable, -30);
    begin(L"LINE");
    finish("ended");
    EXPECT_TRUE(isEnabled(window()));
    EXPECT_FALSE(isEnabled(slider()));
}

// Entries

TEST_F(FadeSliderTest, TypedPercentAndEnterWritesTheNumber) {
    enter(L"45%");
    EXPECT_EQ(fade(), 45);
    EXPECT_EQ(position(), 45);
    EXPECT_EQ(text(), L"      45%");
}

struct EntryCase {
    const wchar_t* typed;
    int fade;  // afterwards, from 50
    bool refused;
};

class FadeEntryTest : public FadeSliderTest, public testing::WithParamInterface<EntryCase> {};

TEST_P(FadeEntryTest, IsTakenOrRefusedWithABalloon) {
    enter(GetParam().typed);
    EXPECT_EQ(fade(), GetParam().fade);
    const std::vector<std::string> balloons = takeTexts("balloon");
    EXPECT_EQ(balloons.size(), GetParam().refused ? 1U : 0U);
    if (GetParam().refused && !balloons.empty()) {
        EXPECT_NE(balloons[0].find("0%"), std::string::npos);
        EXPECT_NE(balloons[0].find("90%"), std::string::npos);
    }
}

INSTANTIATE_TEST_SUITE_P(Entries, FadeEntryTest,
                         testing::Values(EntryCase{L"0", 0, false}, EntryCase{L"1", 1, false},
                                         EntryCase{L"89", 89, false}, EntryCase{L"90", 90, false},
                                         EntryCase{L"91", 50, true}, EntryCase{L"95", 50, true},
                                         EntryCase{L"90.9", 90, false},
                                         EntryCase{L"  %7% ", 7, false}, EntryCase{L"", 50, false},
                                         EntryCase{L" % ", 50, false}, EntryCase{L"abc", 50, true},
                                         EntryCase{L"1e9", 50, true}, EntryCase{L"-20", -20, false},
                                         EntryCase{L"50", 50, false}));

TEST_F(FadeSliderTest, EntryBeyondAShortIsWrittenAsItsLowestSixteenBits) {
    enter(L"-2097202");
    EXPECT_EQ(fade(), -50);
    EXPECT_EQ(text(), L"      50%");
    EXPECT_FALSE(isEnabled(edit())) << "the event brought another value than the entered one";
    EXPECT_TRUE(takeTexts("balloon").empty());
}

TEST_F(FadeSliderTest, RefusedEntryRestoresTheTextAndWritesTheOldValueOnceMore) {
    enter(L"95");
    EXPECT_EQ(text(), L"      50%");
    EXPECT_EQ(takeTexts("balloon").size(), 1U);
    EXPECT_EQ(writes(), 1U);
}

TEST_F(FadeSliderTest, LeavingTheFieldCommitsLikeEnter) {
    put(L"33");
    leave();
    EXPECT_EQ(fade(), 33);
    EXPECT_EQ(text(), L"      33%");
}

TEST_F(FadeSliderTest, EscapeBringsTheOldTextBackAndWritesNothing) {
    put(L"77");
    press("escape");
    EXPECT_EQ(text(), L"      50%");
    EXPECT_EQ(writes(), 0U);
    EXPECT_EQ(fade(), 50);
}

TEST_F(FadeSliderTest, EnterIsConsumedAndNeverReachesTheCommandLine) {
    enter(L"12");
    EXPECT_TRUE(takeSent().empty());
    EXPECT_EQ(bench().windows().focus(), edit());
}

TEST_F(FadeSliderTest, NegativeEntrySwitchesFadingOffAndShowsItsSize) {
    enter(L"-20");
    EXPECT_EQ(fade(), -20);
    EXPECT_EQ(position(), 20);
    EXPECT_EQ(text(), L"      20%");
    EXPECT_TRUE(isEnabled(slider())) << "the control knew the value before its event came";
}

TEST_F(FadeSliderTest, LeavingTheFieldAfterANegativeEntryTakesTheShownSizeForTheValue) {
    enter(L"-20");
    leave();
    EXPECT_EQ(fade(), 20);
}

TEST_F(FadeSliderTest, NotificationHidesTheBalloon) {
    enter(L"95");
    EXPECT_EQ(takeTexts("balloon").size(), 1U);
    takeCalls();
    leave();
    const std::vector<std::string> after = takeCalls();
    EXPECT_NE(std::find(after.begin(), after.end(), "QrUiHideBalloonTip"), after.end());
}

struct NoticeCase {
    int controlId;
    int code;
};

class OtherNoticeTest : public FadeSliderTest, public testing::WithParamInterface<NoticeCase> {};

TEST_P(OtherNoticeTest, HidesTheBalloonAndCommitsNothing) {
    enter(L"95");
    EXPECT_EQ(takeTexts("balloon").size(), 1U);
    put(L"12");
    takeCalls();
    bench().windows().send(
        window(), WM_COMMAND,
        static_cast<WPARAM>(GetParam().code) << 16 | static_cast<WPARAM>(GetParam().controlId),
        reinterpret_cast<LPARAM>(edit()));
    const std::vector<std::string> after = takeCalls();
    EXPECT_EQ(std::count(after.begin(), after.end(), "QrUiHideBalloonTip"), 1);
    EXPECT_EQ(std::count(after.begin(), after.end(), "vxedSetVar"), 0);
    EXPECT_EQ(text(), L"12");
    EXPECT_EQ(fade(), 50);
}

INSTANTIATE_TEST_SUITE_P(Notices, OtherNoticeTest,
                         testing::Values(NoticeCase{10001, 0x100}, NoticeCase{4711, 0x200},
                                         NoticeCase{10001, 0x300}));

TEST_F(FadeSliderTest, EntryDuringTheSettleTimeIsWrittenTwiceWithTheEnteredValue) {
    drag({70});
    release();
    enter(L"15");
    wait(300);
    EXPECT_EQ(fade(), 15);
    EXPECT_EQ(writes(), 2U);
}

TEST_F(FadeSliderTest, WithoutADocumentTheTextIsEmptyAndTheThumbFollows) {
    closeDocument(L"A");
    set(kVariable, 35);
    EXPECT_EQ(text(), L"");
    EXPECT_EQ(position(), 35);
}

TEST_F(FadeSliderTest, WithoutADatabaseAnEntryWritesTheOldValueOnceMore) {
    set(kVariable, 35);
    put(L"12");
    fail("vxdbHostApplicationServices");
    takeCalls();
    press("enter");
    EXPECT_EQ(writes(), 1U);
    EXPECT_EQ(fade(), 35);
    EXPECT_EQ(position(), 35);
    EXPECT_EQ(text(), L"");
    EXPECT_TRUE(takeTexts("balloon").empty());
}

// Failures and life

TEST_F(FadeSliderTest, RefusedWriteLeavesTheVariable) {
    fail("vxedSetVar");
    drag({20});
    wait(300);
    EXPECT_EQ(fade(), 50);
}

TEST_F(FadeSliderTest, UnloadDuringTheSettleTimeWritesNothing) {
    drag({20});
    EXPECT_TRUE(unload());
    wait(1000);
    EXPECT_EQ(fade(), 50);
}

TEST_F(FadeSliderTest, ReleaseOfTheControlsDuringTheSettleTimeWritesNothing) {
    drag({20});
    EXPECT_EQ(notify(kDashboardReleaseControls), 1);
    wait(1000);
    EXPECT_EQ(fade(), 50);
}

}  // namespace
