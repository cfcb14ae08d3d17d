#include "tests/layer/fade_fixture.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

using Calls = std::vector<std::string>;

TEST_F(FadeSliderTest, TypedPercentAndEnterWritesTheNumber) {
    enter(L"45%");
    EXPECT_EQ(fade(), 45);
    EXPECT_EQ(position(), 45);
    EXPECT_EQ(text(), L"      45%");
}

TEST_F(FadeSliderTest, EntryIsReadShownSetAndWrittenInThisOrder) {
    put(L"45%");
    takeJournal();
    press("enter");
    EXPECT_EQ(steps(), (Calls{"vxdbDisToF(\"45\", -1)", textCall("      45%"), positionCall(45),
                              writeCall(45), kRead}));
}

TEST_F(FadeSliderTest, EmptyEntryIsNotRead) {
    put(L" % ");
    takeJournal();
    press("enter");
    EXPECT_EQ(steps(), (Calls{textCall("      50%"), positionCall(50), writeCall(50), kRead}));
}

TEST_F(FadeSliderTest, RefusedEntryIsToldBeforeTheOldValueIsShown) {
    for (const wchar_t* refused : {L"95", L"abc"}) {
        put(refused);
        takeJournal();
        press("enter");
        EXPECT_EQ(balloonTarget(), edit());
        const Calls made = steps();
        ASSERT_EQ(made.size(), 6U);
        EXPECT_EQ(Calls(made.begin() + 1, made.end()),
                  (Calls{kBalloon, textCall("      50%"), positionCall(50), writeCall(50), kRead}));
        EXPECT_EQ(takeTexts("balloon"), Calls{"Enter a value from 0% to 90%."});
    }
}

TEST_F(FadeSliderTest, LeavingHidesTheBalloonAndThenCommits) {
    put(L"45");
    takeJournal();
    leave();
    EXPECT_EQ(steps(), (Calls{kHide, "vxdbDisToF(\"45\", -1)", textCall("      45%"),
                              positionCall(45), writeCall(45), kRead}));
}

TEST_F(FadeSliderTest, EscapeOnlyShowsTheValue) {
    put(L"45");
    takeJournal();
    press("escape");
    EXPECT_EQ(steps(), Calls{textCall("      50%")});
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
        EXPECT_EQ(balloons[0], workbench::toUtf8(filled(3998, {L"0%", L"90%"})));
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
    bench().windows().setName(bench().toolkit().frame().commandLine().m_hWnd, "CommandLine");
    enter(L"12");
    EXPECT_TRUE(takeMessagesOf("CommandLine").empty());
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

}  // namespace
