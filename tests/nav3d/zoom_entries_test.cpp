#include "tests/nav3d/zoom_fixture.h"

#include <string>

namespace {

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
    EXPECT_EQ(takeTexts("balloon").size(), 1U);
    takeCalls();
    enter(L"35");
    EXPECT_EQ(takeCount("QrUiHideBalloonTip"), 1U);
    leave();
}

}  // namespace
