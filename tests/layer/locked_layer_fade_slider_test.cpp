#include "tests/layer/fade_fixture.h"
#include "workbench/editor/editor.h"
#include "workbench/toolkit/slider_widget.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using testing::Contains;
using Calls = std::vector<std::string>;

/// Messages by their numbers.
constexpr std::int64_t kSysVarChanged = 1727;
constexpr std::int64_t kSliderMoved = 1534;

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

TEST_F(FadeSliderTest, ButtonHasItsPictureInBothSizes) {
    EXPECT_EQ(largeButtonImage(), "RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_ON");
    set(kVariable, -20);
    EXPECT_EQ(buttonImage(), "RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_OFF");
    EXPECT_EQ(largeButtonImage(), "RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_OFF");
}

TEST_F(FadeSliderTest, PartsAreMadeInTheOrderOfTheRow) {
    takeJournal();
    rebuildControl();
    EXPECT_THAT(takeCallLines({"CQrUiProgSliderCtrl::Create"}),
                Contains("CQrUiProgSliderCtrl::Create(1342177280, object, 10001, 2)"));
    const auto& row = *dynamic_cast<CQrUiToolPanel*>(CWnd::FromHandle(window()));
    ASSERT_EQ(row.GetToolPanelItemCount(), 4);
    EXPECT_EQ(row.GetToolPanelItem(0)->GetID(), L"TPB_LAYER_SLIDERCONTROL1");
    EXPECT_EQ(row.GetToolPanelItem(1)->GetControl(), slider());
    EXPECT_EQ(row.GetToolPanelItem(2)->GetType(), kItemSeparator);
    EXPECT_EQ(row.GetToolPanelItem(3)->GetControl(), edit());
}

TEST_F(FadeSliderTest, SliderIsMadeAsLargeAsTheControl) {
    const CRect whole = firstRectOf(window());
    ASSERT_NE(whole.Width(), 0);
    EXPECT_EQ(firstRectOf(slider()), (CRect{0, 0, whole.Width(), whole.Height()}));
}

TEST_F(FadeSliderTest, VariableIsReadOnceAndThenShownByThumbFieldAndButton) {
    takeJournal();
    rebuildControl();
    Calls made = takeCallLines({"vxedGetVar", "CQrUiProgSliderCtrl::SetSliderPos",
                                "CWnd::SetWindowText", "CWnd::EnableWindow"});
    const auto first = std::find(made.begin(), made.end(), kRead);
    ASSERT_NE(first, made.end());
    ASSERT_GE(made.end() - first, 5);
    EXPECT_EQ(Calls(first, first + 5), (Calls{kRead, positionCall(50), textCall("      50%"),
                                              "CWnd::EnableWindow(\"CQrUiProgSliderCtrl\", 1)",
                                              "CWnd::EnableWindow(\"CQrUiInputEditCtrl\", 1)"}));
}

TEST_F(FadeSliderTest, MessagesAreAnsweredZero) {
    const auto thumb = reinterpret_cast<LPARAM>(slider());
    EXPECT_EQ(send(1534, 20, thumb), 0);
    EXPECT_EQ(send(1534, 20, 0), 0);
    EXPECT_EQ(send(WM_TIMER, 1), 0);
    EXPECT_EQ(send(WM_TIMER, 1), 0);
    EXPECT_EQ(send(WM_TIMER, 2), 0);
    EXPECT_EQ(send(1727, 1, reinterpret_cast<LPARAM>(kVariable)), 0);
    EXPECT_EQ(send(1727, 1, reinterpret_cast<LPARAM>(L"LTSCALE")), 0);
    EXPECT_EQ(send(1729, 0, reinterpret_cast<LPARAM>(L"LINE")), 0);
    EXPECT_EQ(send(1730, 0, reinterpret_cast<LPARAM>(L"LINE")), 0);
    EXPECT_EQ(send(1731, 0, reinterpret_cast<LPARAM>(L"LINE")), 0);
    for (const WPARAM id : {10001, 4711}) {
        EXPECT_EQ(send(1735, id), 0);
        EXPECT_EQ(send(1738, id), 0);
    }
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

TEST_F(FadeSliderTest, TimerStartsOnceAndStopsBeforeTheWrite) {
    takeJournal();
    drag({40});
    EXPECT_EQ(steps(), (Calls{textCall("      40%"), kStartTimer}));
    drag({41});
    EXPECT_EQ(steps(), Calls{textCall("      41%")});
    wait(150);
    EXPECT_EQ(steps(), Calls{});
    wait(150);
    EXPECT_EQ(steps(), (Calls{kStopTimer, writeCall(41), kRead}));
    wait(1000);
    EXPECT_EQ(steps(), Calls{}) << "the timer is at rest";
    drag({42});
    EXPECT_EQ(steps(), (Calls{textCall("      42%"), kStartTimer}));
    release();
}

TEST_F(FadeSliderTest, DragNeverSetsTheThumb) {
    takeJournal();
    drag({40, 41});
    release();
    wait(300);
    EXPECT_EQ(takeCount("CQrUiProgSliderCtrl::SetSliderPos"), 0U);
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

TEST_F(FadeSliderTest, ChangeIsShownByFieldThumbAndButtonInThisOrder) {
    takeJournal();
    set(kVariable, -25);
    EXPECT_EQ(steps(), (Calls{kRead, textCall("      25%"), positionCall(25),
                              "CWnd::EnableWindow(\"CQrUiProgSliderCtrl\", 0)",
                              "CWnd::EnableWindow(\"CQrUiInputEditCtrl\", 0)"}));
}

TEST_F(FadeSliderTest, SameValueIsReadAndNotShownAgain) {
    takeJournal();
    send(1727, 1, reinterpret_cast<LPARAM>(kVariable));
    EXPECT_EQ(steps(), Calls{kRead});
}

TEST_F(FadeSliderTest, CommandDisablesTheControlAsAWholeAndItsEndEnablesIt) {
    takeJournal();
    send(1729, 0, reinterpret_cast<LPARAM>(L"LINE"));
    EXPECT_EQ(steps(), Calls{"CWnd::EnableWindow(\"LayerLockTransparencySliderControl\", 0)"});
    for (const UINT over : {1730, 1731}) {
        send(over, 0, reinterpret_cast<LPARAM>(L"LINE"));
        EXPECT_EQ(steps(), (Calls{"CWnd::EnableWindow(\"LayerLockTransparencySliderControl\", 1)",
                                  "CWnd::EnableWindow(\"CQrUiProgSliderCtrl\", 1)",
                                  "CWnd::EnableWindow(\"CQrUiInputEditCtrl\", 1)"}));
    }
}

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
