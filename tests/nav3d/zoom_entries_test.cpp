#include "tests/nav3d/zoom_fixture.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/toolkit/toolkit.h"

#include <string>
#include <vector>

namespace {

using Calls = std::vector<std::string>;

/// What a user sees and feels of an entry.
const std::vector<std::string_view> kTelling{"QrUiHideBalloonTip", "QrUiShowBalloonTip",
                                             "CWnd::SetWindowText", "CWnd::SetFocus",
                                             "vxgsSetLensLength"};

/// The same, and what the host is asked for.
const std::vector<std::string_view> kAllOfAnEntry{
    "QrUiHideBalloonTip", "QrUiShowBalloonTip", "CWnd::SetWindowText", "CWnd::SetFocus",
    "vxgsSetLensLength",  "vxdbDisToF",         "vxdbAngToF",          "vxedGetVar"};

std::string balloonCall(const std::string& text) {
    return "QrUiShowBalloonTip(object, object, \"" + text + "\", 0)";
}

std::string textCall(const std::string& text) {
    return "CWnd::SetWindowText(\"CQrUiInputEditCtrl\", \"" + text + "\")";
}

const std::string kHide = "QrUiHideBalloonTip(object)";
const std::string kFocus = "CWnd::SetFocus(\"CQrUiInputEditCtrl\")";

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
    takeCalls();
    leave();
    EXPECT_EQ(takeCount("vxgsSetLensLength"), 0U);
}

TEST_F(ZoomSliderTest, EmptyEntryRestoresTheTextWithoutABalloon) {
    enter(L"   ");
    EXPECT_EQ(text("edit"), L"50.00");
    EXPECT_EQ(balloon(), "");
    leave();
}

TEST_F(ZoomSliderTest, TextThatIsTheSameButForBlanksStaysAndDoesNothing) {
    put(L" 50.00 ");
    takeJournal();
    press("enter");
    EXPECT_EQ(takeCallLines(kAllOfAnEntry), Calls{});
    EXPECT_EQ(text("edit"), L" 50.00 ");
    leave();
}

TEST_F(ZoomSliderTest, EmptyEntryAsksTheHostNothing) {
    put(L"  ");
    takeJournal();
    press("enter");
    EXPECT_EQ(takeCallLines(kAllOfAnEntry), Calls{textCall("50.00")});
    leave();
}

TEST_F(ZoomSliderTest, EntryReachesNoCommandLine) {
    bench().windows().setName(bench().toolkit().frame().commandLine().m_hWnd, "CommandLine");
    enter(L"35");
    EXPECT_TRUE(takeSent().empty());
    enter(L"wide");
    EXPECT_TRUE(takeSent().empty());
    EXPECT_EQ(balloon(), string(1246));
    put(L"35");
    press("escape");
    EXPECT_TRUE(takeSent().empty());
    EXPECT_TRUE(takeMessagesOf("CommandLine").empty());
    leave();
}

TEST_F(ZoomSliderTest, LockedViewportIsToldBeforeTheTextIsRestored) {
    lockViewport();
    const std::string shown = workbench::toUtf8(text("edit"));
    put(L"77");
    takeJournal();
    press("enter");
    EXPECT_EQ(balloonText(), stringOf(1231));
    EXPECT_EQ(balloonTarget(), field("edit"));
    EXPECT_EQ(takeCallLines(kTelling), (Calls{balloonCall(string(1231)), textCall(shown)}));
    EXPECT_EQ(balloon(), string(1231));
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

TEST_F(ZoomSliderTest, TextThatIsNoNumberIsToldAndThenGivenBack) {
    for (const char* part : {"edit", "edit2"}) {
        const std::string before = workbench::toUtf8(text(part));
        put(L"wide", part);
        takeJournal();
        press("enter");
        EXPECT_EQ(balloonTarget(), field(part));
        EXPECT_EQ(takeCallLines(kTelling),
                  (Calls{kHide, balloonCall(string(1246)), textCall(before), kFocus}));
        EXPECT_EQ(balloon(), string(1246));
        leave();
    }
}

TEST_F(ZoomSliderTest, ValueOutOfRangeIsGivenBackAndThenTold) {
    const std::string range = workbench::toUtf8(filled(1247, {L".786", L"100,000"}));
    put(L"0.5");
    takeJournal();
    press("enter");
    EXPECT_EQ(balloonTarget(), field("edit"));
    EXPECT_EQ(takeCallLines(kTelling),
              (Calls{kHide, textCall("50.00"), kFocus, balloonCall(range)}));
    EXPECT_EQ(balloon(), range);
    leave();
}

TEST_F(ZoomSliderTest, TypingAfterARefusalReplacesAllOfTheText) {
    for (const wchar_t* refused : {L"wide", L"0.5"}) {
        enter(refused);
        EXPECT_NE(balloon(), "");
        workbench::gestures::typeText(bench().toolkit(), L"7");
        EXPECT_EQ(text("edit"), L"7");
        press("escape");
    }
    leave();
}

TEST_F(ZoomSliderTest, RefusedEntryThatIsLeftKeepsTheFieldFromIdleTicks) {
    endACommand();
    put(L"wide");
    leave();
    EXPECT_EQ(balloon(), string(1246));
    ASSERT_TRUE(hasFocus(field("edit")));
    setLens(28.0);
    idle();
    EXPECT_EQ(text("edit"), L"50.00");
    leave();
    idle();
    EXPECT_EQ(text("edit"), L"28.00");
}

TEST_F(ZoomSliderTest, LeavingAFieldLetsIdleTicksInBeforeAnyCommandHasEnded) {
    rebuildControl();
    tellOf(L"CVPORT");
    setLens(28.0);
    focusField();
    leave();
    idle();
    EXPECT_EQ(text("edit"), L"28.00");
}

struct RefusedCase {
    const char* field;
    const wchar_t* text;
    const wchar_t* least;
    const wchar_t* most;
};
class RefusedEntryTest : public ZoomSliderTest, public testing::WithParamInterface<RefusedCase> {};

TEST_P(RefusedEntryTest, NamesTheLimitsAndGivesTheFieldBack) {
    const std::wstring before = text(GetParam().field);
    enter(GetParam().text, GetParam().field);
    EXPECT_EQ(workbench::toWide(balloon()), filled(1247, {GetParam().least, GetParam().most}));
    EXPECT_EQ(text(GetParam().field), before);
    EXPECT_TRUE(hasFocus(field(GetParam().field)));
    EXPECT_DOUBLE_EQ(lens(), 50.0);
    leave();
}

// The lower limit of the lens stands without its leading zero.
INSTANTIATE_TEST_SUITE_P(Entries, RefusedEntryTest,
                         testing::Values(RefusedCase{"edit", L"0.78", L".786", L"100,000"},
                                         RefusedCase{"edit", L"100000.1", L".786", L"100,000"},
                                         RefusedCase{"edit", L"-5", L".786", L"100,000"},
                                         RefusedCase{"edit2", L"0.004", L"0.005", L"175.0"},
                                         RefusedCase{"edit2", L"175.1", L"0.005", L"175.0"}));

TEST_F(ZoomSliderTest, AcceptedTextIsTheOneThatIsShownOfTheLens) {
    enter(L"35");
    put(L"7");
    press("escape");
    EXPECT_EQ(text("edit"), L"35.00");
    leave();
}

TEST_F(ZoomSliderTest, LensIsRoundedToWhatIsShownOfIt) {
    enter(L"24.126");
    EXPECT_DOUBLE_EQ(lens(), 24.13);
    leave();
}

TEST_F(ZoomSliderTest, EntryShowsTheLensThatTheViewportTook) {
    put(L"35");
    takeJournal();
    fail("vxgsSetLensLength");
    press("enter");
    EXPECT_EQ(text("edit"), L"50.00") << "the view is read again";
    EXPECT_EQ(position(), 500);
    leave();
}

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
                                         std::wstring(1000, L'x')));

TEST_F(ZoomSliderTest, AngleIsReadInDegreesWhateverTheUnitItIsShownIn) {
    constexpr int kRadians = 3;
    set(L"AUNITS", kRadians);
    EXPECT_EQ(text("edit2").back(), L'r');
    enter(L"90", "edit2");
    EXPECT_NEAR(lens(), 18.0, 1.0e-9);
    EXPECT_EQ(text("edit2").back(), L'r');
    leave();
}

TEST_F(ZoomSliderTest, TextOfAFieldIsKeptAsItsKindOfNumber) {
    takeJournal();
    focusField("edit");
    EXPECT_EQ(takeCallLines({"vxdbDisToF", "vxdbAngToF"}), Calls{"vxdbDisToF(\"50.00\", 2)"});
    leave();
    takeJournal();
    focusField("edit2");
    EXPECT_EQ(takeCallLines({"vxdbDisToF", "vxdbAngToF"}), Calls{"vxdbAngToF(\"40\", -1)"});
    leave();
}

TEST_F(ZoomSliderTest, TextThatIsNoNumberIsNotKept) {
    focusField();
    leave();
    bench().windows().state().setText(field("edit"), L"wide");
    focusField();
    press("escape");
    EXPECT_EQ(text("edit"), L"50.00");
    leave();
}

TEST_F(ZoomSliderTest, WithoutADatabaseNoTextIsKept) {
    focusField();
    leave();
    bench().windows().state().setText(field("edit"), L"12");
    fail("vxdbHostApplicationServices");
    focusField();
    press("escape");
    EXPECT_EQ(text("edit"), L"50.00");
    leave();
}

TEST_F(ZoomSliderTest, NoticesOfOtherPartsAndOtherNoticesKeepAndCommitNothing) {
    focusField();
    leave();
    bench().windows().state().setText(field("edit"), L"35");
    takeJournal();
    const auto edit = reinterpret_cast<LPARAM>(field("edit"));
    for (const WPARAM notice : {MAKELONG(4711, EN_KILLFOCUS), MAKELONG(4711, EN_SETFOCUS),
                                MAKELONG(10001, 0x300), MAKELONG(10003, EN_KILLFOCUS)})
        send(WM_COMMAND, notice, edit);
    send(1735, 10003);
    send(1738, 10003);
    EXPECT_EQ(takeCalls(), Calls{});
    EXPECT_EQ(text("edit"), L"35");
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
    EXPECT_EQ(takeTexts("balloon").size(), 1U);
    takeCalls();
    enter(L"35");
    EXPECT_EQ(takeCount("QrUiHideBalloonTip"), 1U);
    leave();
}

}  // namespace
