#include "tests/support/control_bench.h"

#include "workbench/base/text.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/windows/window_system.h"

#include <string>
#include <vector>

namespace {

using workbench::Value;

/// What the two controls promise, each in its own numbers.
struct StepCase {
    const char* control;
    const wchar_t* variable;
    std::vector<const wchar_t*> refreshing;
    int windowId;
    int sliderId;
    int lowest;
    int highest;
    const wchar_t* itemId;
    const char* image;
    UINT label;
    UINT refusal;
    double value;       // not the one at start
    int valuePosition;  // where it stands
    const wchar_t* valueText;
    int draggedPosition;
    double draggedValue;
    const wchar_t* tooLittle;
    const wchar_t* tooMuch;
};

void PrintTo(const StepCase& row, std::ostream* out) {
    *out << row.control;
}

const StepCase kSize{"3DNavStepSizeSliderControl",
                     L"STEPSIZE",
                     {L"STEPSIZE", L"LUPREC", L"LUNITS"},
                     102,
                     5005,
                     1,
                     1000,
                     L"TPB_3DNAV_SLIDERCONTROL2",
                     "RCDATA_3DNAV_SLIDERCONTROL2",
                     1227,
                     1229,
                     0.5,
                     76,
                     L"0.50",
                     920,
                     10000.0,
                     L"0",
                     L"1000001"};
const StepCase kRate{"3DNavStepsPerSecSliderControl",
                     L"STEPSPERSEC",
                     {L"STEPSPERSEC", L"LUPREC", L"luprec"},
                     103,
                     5006,
                     10,
                     300,
                     L"TPB_3DNAV_SLIDERCONTROL3",
                     "RCDATA_3DNAV_SLIDERCONTROL3",
                     1228,
                     1230,
                     15.5,
                     155,
                     L"15.50",
                     145,
                     14.5,
                     L"0.9",
                     L"30.1"};

class StepSliderTest : public support::ControlBench, public testing::WithParamInterface<StepCase> {
protected:
    void SetUp() override {
        showControl(GetParam().control);
        set(L"LUPREC", 2);
        takeJournal();
    }

    double value() { return var(GetParam().variable).asReal(); }
    std::size_t writes() { return takeCount("vxedSetVar"); }
    std::string balloon() {
        const std::vector<std::string> all = takeTexts("balloon");
        return all.empty() ? std::string() : all.back();
    }
    const workbench::SliderWidget& widget() {
        return *dynamic_cast<workbench::SliderWidget*>(
            bench().windows().find(slider())->widget.get());
    }
};

INSTANTIATE_TEST_SUITE_P(Controls, StepSliderTest, testing::Values(kSize, kRate));

TEST_P(StepSliderTest, PartsHaveTheirIdsRangeAndTexts) {
    const StepCase& row = GetParam();
    EXPECT_EQ(bench().windows().find(window())->id, row.windowId);
    EXPECT_EQ(bench().windows().find(slider())->id, row.sliderId);
    EXPECT_EQ(bench().windows().find(field())->id, 10001);
    EXPECT_EQ(widget().lowest(), row.lowest);
    EXPECT_EQ(widget().highest(), row.highest);
    const workbench::ItemView icon = workbench::viewOf(bench().toolkit(), *item(row.itemId));
    EXPECT_EQ(icon.image, row.image);
    EXPECT_EQ(icon.name, stringOf(row.label));
    EXPECT_EQ(tipOf(field()), stringOf(row.label));
    EXPECT_EQ(tipOf(slider()).find(stringOf(row.label) + L":"), 0U);
    EXPECT_GT(tipOf(slider()).size(), stringOf(row.label).size() + 1);
}

TEST_P(StepSliderTest, ShowsTheDrawingsValue) {
    set(GetParam().variable, GetParam().value);
    EXPECT_EQ(position(), GetParam().valuePosition);
    EXPECT_EQ(text(), GetParam().valueText);
}

TEST_P(StepSliderTest, RefreshesForItsVariablesAlone) {
    for (const wchar_t* name : GetParam().refreshing) {
        put(L"7");
        announce(name);
        EXPECT_NE(text(), L"7") << workbench::toUtf8(name);
    }
    put(L"7");
    announce(L"CVPORT");
    announce(GetParam().windowId == 102 ? L"luprec" : L"stepspersec");
    EXPECT_EQ(text(), L"7");
    press("escape");
    leave();
}

TEST_P(StepSliderTest, DragWritesAtEachStepAndStaysUnderTheHand) {
    drag({GetParam().draggedPosition});
    EXPECT_EQ(writes(), 1U);
    EXPECT_DOUBLE_EQ(value(), GetParam().draggedValue);
    EXPECT_EQ(position(), GetParam().draggedPosition);
    release();
}

TEST_P(StepSliderTest, DragShowsTheValueInTheTip) {
    drag({GetParam().draggedPosition});
    EXPECT_EQ(tipOf(slider()).find(stringOf(GetParam().label) + L":"), 0U);
    release();
}

TEST_P(StepSliderTest, WriteStandsUnderADocumentLock) {
    drag({GetParam().draggedPosition});
    std::vector<std::string> steps;
    for (const std::string& call : takeCalls()) {
        if (call.find("VxAxDocLock") == 0 || call == "vxedSetVar")
            steps.push_back(call);
    }
    EXPECT_EQ(steps, (std::vector<std::string>{"VxAxDocLock::VxAxDocLock", "vxedSetVar",
                                               "VxAxDocLock::~VxAxDocLock"}));
    release();
}

TEST_P(StepSliderTest, EnteredValueIsWrittenAndShown) {
    enter(GetParam().valueText);
    EXPECT_DOUBLE_EQ(value(), GetParam().value);
    EXPECT_EQ(position(), GetParam().valuePosition);
    EXPECT_EQ(balloon(), "");
    leave();
}

TEST_P(StepSliderTest, LeavingAfterEnterWritesNothingMore) {
    enter(GetParam().valueText);
    takeCalls();
    leave();
    EXPECT_EQ(writes(), 0U);
}

TEST_P(StepSliderTest, ValueOutOfRangeIsRefused) {
    const std::wstring before = text();
    for (const wchar_t* entry : {GetParam().tooLittle, GetParam().tooMuch, L"fast", L"-1"}) {
        enter(entry);
        EXPECT_NE(balloon(), "") << workbench::toUtf8(entry);
        EXPECT_EQ(text(), before);
        EXPECT_TRUE(hasFocus(field()));
    }
    EXPECT_EQ(writes(), 0U);
    leave();
}

TEST_P(StepSliderTest, EmptiedFieldRefreshesWithoutABalloon) {
    const std::wstring before = text();
    put(L"");
    leave();
    EXPECT_EQ(text(), before);
    EXPECT_EQ(balloon(), "");
    EXPECT_EQ(writes(), 0U);
}

TEST_P(StepSliderTest, EscapeShowsTheDrawingsValueAndNotTheLastAcceptedText) {
    put(L"7");
    set(GetParam().variable, GetParam().value);
    put(L"8");
    press("escape");
    EXPECT_EQ(text(), GetParam().valueText);
    leave();
}

TEST_P(StepSliderTest, ClickOnTheIconGoesToTheField) {
    clickIcon();
    EXPECT_TRUE(hasFocus(field()));
    leave();
}

TEST_P(StepSliderTest, AnyCommandHidesTheBalloonFirst) {
    enter(L"fast");
    EXPECT_NE(balloon(), "");
    takeCalls();
    send(WM_COMMAND, 4711);
    EXPECT_EQ(takeCount("QrUiHideBalloonTip"), 1U);
    leave();
}

TEST_P(StepSliderTest, AnotherSlidersMessageIsIgnored) {
    takeCalls();
    send(1534, 100, reinterpret_cast<LPARAM>(field()));
    EXPECT_EQ(writes(), 0U);
}

TEST_P(StepSliderTest, DocumentThatBecomesCurrentBringsItsValue) {
    set(GetParam().variable, GetParam().value);
    newDocument(L"B");
    EXPECT_NE(text(), GetParam().valueText);
    activateDocument(L"A");
    EXPECT_EQ(text(), GetParam().valueText);
    EXPECT_EQ(position(), GetParam().valuePosition);
}

TEST_P(StepSliderTest, MessageWithoutADocumentChangesNothing) {
    put(L"7");
    send(1726, 0, 0);
    EXPECT_EQ(text(), L"7");
    press("escape");
    leave();
}

TEST_P(StepSliderTest, WithoutADatabaseTheFieldIsBlankAndTheSliderStandsAtItsEnd) {
    bench().faults().fail("vxdbHostApplicationServices");
    announce(GetParam().variable);
    EXPECT_EQ(text(), L"");
    EXPECT_EQ(position(), GetParam().lowest);
}

TEST_P(StepSliderTest, RefusedWriteLeavesWhatWasEnteredUntilTheNextRefresh) {
    const double before = value();
    fail("vxedSetVar");
    enter(GetParam().valueText);
    EXPECT_EQ(text(), GetParam().valueText);
    EXPECT_DOUBLE_EQ(value(), before);
    bench().faults().unfail("vxedSetVar");
    leave();
    announce(GetParam().variable);
    EXPECT_NE(text(), GetParam().valueText);
}

TEST_P(StepSliderTest, CommandsAndSpacesNeverDisableIt) {
    begin(L"LINE");
    EXPECT_TRUE(isEnabled(slider()));
    EXPECT_TRUE(isEnabled(field()));
    finish();
}

class StepSizeSliderTest : public support::ControlBench {
protected:
    void SetUp() override { showControl("3DNavStepSizeSliderControl"); }
};

TEST_F(StepSizeSliderTest, PositionTwoWritesTwoHundredthsAndStandsAtFourAfterARefresh) {
    drag({2});
    EXPECT_DOUBLE_EQ(var(L"STEPSIZE").asReal(), 0.02);
    EXPECT_EQ(position(), 2);
    release();
    announce(L"STEPSIZE");
    EXPECT_EQ(position(), 4);
}

TEST_F(StepSizeSliderTest, RefusalNamesTheTwoLimits) {
    enter(L"0");
    const std::vector<std::string> balloons = takeTexts("balloon");
    ASSERT_EQ(balloons.size(), 1U);
    EXPECT_NE(balloons[0].find(".0000010"), std::string::npos) << balloons[0];
    EXPECT_NE(balloons[0].find("1,000,000"), std::string::npos) << balloons[0];
    leave();
}

class StepsPerSecSliderTest : public support::ControlBench {
protected:
    void SetUp() override { showControl("3DNavStepsPerSecSliderControl"); }
};

TEST_F(StepsPerSecSliderTest, ThirtyStandsAtTheEnd) {
    enter(L"30");
    EXPECT_EQ(position(), 300);
    EXPECT_DOUBLE_EQ(var(L"STEPSPERSEC").asReal(), 30.0);
    leave();
}

TEST_F(StepsPerSecSliderTest, RightEndIsTakenByTheHost) {
    drag({300});
    EXPECT_NEAR(var(L"STEPSPERSEC").asReal(), 30.0, 1.0e-12);
    release();
}

TEST_F(StepsPerSecSliderTest, EntryIsRoundedToWhatIsShown) {
    set(L"LUPREC", 1);
    enter(L"2.26");
    EXPECT_DOUBLE_EQ(var(L"STEPSPERSEC").asReal(), 2.3);
    EXPECT_EQ(text(), L"2.3");
    leave();
}

}  // namespace
