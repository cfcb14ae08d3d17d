#include "tests/nav3d/step_fixture.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/toolkit/toolkit.h"

#include <string>
#include <vector>

namespace {

using Calls = std::vector<std::string>;

class StepEntryTest : public StepSliderTest {};

INSTANTIATE_TEST_SUITE_P(Controls, StepEntryTest, testing::Values(kSize, kRate));

TEST_P(StepEntryTest, EnteredValueIsWrittenAndShown) {
    enter(GetParam().valueText);
    EXPECT_DOUBLE_EQ(value(), GetParam().value);
    EXPECT_EQ(position(), GetParam().valuePosition);
    EXPECT_EQ(balloon(), "");
    leave();
}

TEST_P(StepEntryTest, EntryMovesTheSliderThenShowsThenWritesUnderALock) {
    put(GetParam().valueText);
    takeJournal();
    press("enter");
    EXPECT_EQ(takeCallLines({"CWnd::SetWindowText", "VxAxDocLock::VxAxDocLock", "vxedSetVar",
                             "VxAxDocLock::~VxAxDocLock", "CQrUiProgSliderCtrl::SetSliderPos",
                             "CQrUiProgSliderCtrl::ShowToolTip", "QrUiHideBalloonTip"}),
              (Calls{positionCall(GetParam().valuePosition), textCall(GetParam().valueText),
                     "VxAxDocLock::VxAxDocLock(object, 1)", GetParam().writeOfValue,
                     "VxAxDocLock::~VxAxDocLock()"}));
    leave();
}

TEST_P(StepEntryTest, EnterAndEscapeReachNoCommandLine) {
    bench().windows().setName(bench().toolkit().frame().commandLine().m_hWnd, "CommandLine");
    enter(GetParam().valueText);
    press("escape");
    EXPECT_TRUE(takeSent().empty());
    EXPECT_TRUE(takeMessagesOf("CommandLine").empty());
    leave();
}

TEST_P(StepEntryTest, LimitsThemselvesAreTaken) {
    for (const wchar_t* limit : {GetParam().least, GetParam().most}) {
        enter(limit);
        EXPECT_EQ(balloon(), "") << workbench::toUtf8(limit);
        EXPECT_DOUBLE_EQ(value(), std::stod(limit));
        leave();
    }
}

TEST_P(StepEntryTest, HostsChangeBehindAnEntryIsFollowed) {
    enter(GetParam().valueText);
    leave();
    set(GetParam().variable, GetParam().draggedValue);
    EXPECT_EQ(text(), GetParam().draggedText);
}

TEST_P(StepEntryTest, LeavingAfterEnterWritesNothingMore) {
    enter(GetParam().valueText);
    takeCalls();
    leave();
    EXPECT_EQ(writes(), 0U);
}

TEST_P(StepEntryTest, ValueOutOfRangeIsRefused) {
    const std::wstring before = text();
    for (const wchar_t* entry : {GetParam().tooLittle, GetParam().tooMuch, L"fast", L"-1"}) {
        enter(entry);
        EXPECT_EQ(balloonTarget(), field());
        EXPECT_EQ(balloon(), workbench::toUtf8(refusal())) << workbench::toUtf8(entry);
        EXPECT_EQ(text(), before);
        EXPECT_TRUE(hasFocus(field()));
    }
    EXPECT_EQ(writes(), 0U);
    leave();
}

TEST_P(StepEntryTest, RefusedEntryIsGivenBackAndThenTold) {
    const std::wstring before = text();
    put(GetParam().tooMuch);
    takeJournal();
    press("enter");
    EXPECT_EQ(
        takeCallLines({"CWnd::SetWindowText", "CWnd::SetFocus", "QrUiShowBalloonTip",
                       "CQrUiProgSliderCtrl::SetSliderPos", "VxAxDocLock::VxAxDocLock"}),
        (Calls{textCall(before), "CWnd::SetFocus(\"CQrUiInputEditCtrl\")",
               "QrUiShowBalloonTip(object, object, \"" + workbench::toUtf8(refusal()) + "\", 0)"}));
    EXPECT_EQ(balloon(), workbench::toUtf8(refusal()));
    leave();
}

TEST_P(StepEntryTest, TypingAfterARefusalReplacesAllOfTheText) {
    enter(L"fast");
    EXPECT_NE(balloon(), "");
    workbench::gestures::typeText(bench().toolkit(), L"7");
    EXPECT_EQ(text(), L"7");
    press("escape");
    leave();
}

TEST_P(StepEntryTest, SameTextButForBlanksDoesNothing) {
    put(L" " + text() + L" ");
    takeJournal();
    press("enter");
    EXPECT_EQ(takeCallLines({"CWnd::SetWindowText", "vxdbDisToF", "vxedSetVar",
                             "CQrUiProgSliderCtrl::SetSliderPos"}),
              Calls{});
    leave();
}

TEST_P(StepEntryTest, TextIsKeptAsADistanceWhateverTheFieldShows) {
    const std::string shown = workbench::toUtf8(text());
    takeJournal();
    focusField();
    EXPECT_EQ(takeCallLines({"vxdbDisToF"}), Calls{"vxdbDisToF(\"" + shown + "\", -1)"});
    leave();
}

TEST_P(StepEntryTest, TextThatIsNoDistanceIsNotKept) {
    const std::wstring before = text();
    focusField();
    leave();
    bench().windows().state().setText(field(), L"fast");
    focusField();
    press("enter");
    EXPECT_EQ(balloon(), workbench::toUtf8(refusal()));
    EXPECT_EQ(text(), before);
    leave();
}

TEST_P(StepEntryTest, OtherNoticesAndOtherFieldsOnlyHideTheBalloon) {
    put(L"7");
    takeJournal();
    for (const WPARAM notice :
         {MAKELONG(10001, 0x300), MAKELONG(10002, EN_KILLFOCUS), MAKELONG(10002, EN_SETFOCUS)})
        send(WM_COMMAND, notice, reinterpret_cast<LPARAM>(field()));
    EXPECT_EQ(takeCalls(), Calls(3, "QrUiHideBalloonTip"));
    send(1735, 10002);
    send(1738, 10002);
    EXPECT_EQ(takeCalls(), Calls{});
    EXPECT_EQ(text(), L"7");
    press("escape");
    leave();
}

TEST_P(StepEntryTest, EmptiedFieldRefreshesWithoutABalloon) {
    const std::wstring before = text();
    put(L"");
    leave();
    EXPECT_EQ(text(), before);
    EXPECT_EQ(balloon(), "");
    EXPECT_EQ(writes(), 0U);
}

TEST_P(StepEntryTest, EscapeShowsTheDrawingsValueAndNotTheLastAcceptedText) {
    put(L"7");
    set(GetParam().variable, GetParam().value);
    put(L"8");
    press("escape");
    EXPECT_EQ(text(), GetParam().valueText);
    leave();
}

TEST_P(StepEntryTest, AnyCommandHidesTheBalloonFirst) {
    enter(L"fast");
    EXPECT_NE(balloon(), "");
    takeCalls();
    send(WM_COMMAND, 4711);
    EXPECT_EQ(takeCount("QrUiHideBalloonTip"), 1U);
    leave();
}

TEST_P(StepEntryTest, RefusedWriteLeavesWhatWasEnteredUntilTheNextRefresh) {
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

class RateEntryTest : public support::ControlBench {
protected:
    void SetUp() override { showControl("3DNavStepsPerSecSliderControl"); }
};

TEST_F(RateEntryTest, EntryIsRoundedToWhatIsShown) {
    set(L"LUPREC", 1);
    enter(L"2.26");
    EXPECT_DOUBLE_EQ(var(L"STEPSPERSEC").asReal(), 2.3);
    EXPECT_EQ(text(), L"2.3");
    leave();
}

}  // namespace
