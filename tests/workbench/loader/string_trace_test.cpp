#include "workbench/loader/string_trace.h"

#include <gtest/gtest.h>

namespace workbench {

class StringTraceTest : public testing::Test {
protected:
    StringTrace trace;
};

TEST_F(StringTraceTest, AnExactTextGivesItsNumber) {
    trace.remember(203, L"Dashboard");
    trace.remember(204, L"Panels");
    EXPECT_EQ(trace.resourceNumberOf(L"Dashboard"), 203);
    EXPECT_EQ(trace.resourceNumberOf(L"Panels"), 204);
}

TEST_F(StringTraceTest, AForeignOrEmptyTextHasNoNumber) {
    trace.remember(203, L"Dashboard");
    EXPECT_FALSE(trace.resourceNumberOf(L"dashboard"));
    EXPECT_FALSE(trace.resourceNumberOf(L"Dashboard "));
    EXPECT_FALSE(trace.resourceNumberOf(L""));
}

TEST_F(StringTraceTest, OfTwoNumbersWithOneTextTheLastHandedOutWins) {
    trace.remember(1, L"None");
    trace.remember(2, L"None");
    EXPECT_EQ(trace.resourceNumberOf(L"None"), 2);
    trace.remember(1, L"None");
    EXPECT_EQ(trace.resourceNumberOf(L"None"), 1);
}

TEST_F(StringTraceTest, InsertsMatchAnything) {
    trace.remember(3998, L"Enter a value from %ls to %ls.");
    EXPECT_EQ(trace.resourceNumberOf(L"Enter a value from 0% to 90%."), 3998);
    EXPECT_EQ(trace.resourceNumberOf(L"Enter a value from  to ."), 3998);
    EXPECT_FALSE(trace.resourceNumberOf(L"Enter a value from 0% to 90%"));
    EXPECT_FALSE(trace.resourceNumberOf(L"Please: Enter a value from 0% to 90%."));
}

TEST_F(StringTraceTest, EachKindOfInsertIsOne) {
    trace.remember(1, L"a %d b");
    trace.remember(2, L"c %.2f d");
    trace.remember(3, L"e %-8ls f");
    trace.remember(4, L"g %s h %08X i");
    EXPECT_EQ(trace.resourceNumberOf(L"a 17 b"), 1);
    EXPECT_EQ(trace.resourceNumberOf(L"c 0.25 d"), 2);
    EXPECT_EQ(trace.resourceNumberOf(L"e x        f"), 3);
    EXPECT_EQ(trace.resourceNumberOf(L"g y h 00FF i"), 4);
}

TEST_F(StringTraceTest, ADoubledPercentSignStandsForOne) {
    trace.remember(7, L"%d%% done");
    EXPECT_EQ(trace.resourceNumberOf(L"40% done"), 7);
    EXPECT_FALSE(trace.resourceNumberOf(L"40 done"));
}

TEST_F(StringTraceTest, ALonePercentSignIsText) {
    trace.remember(8, L"50% of %ls");
    EXPECT_EQ(trace.resourceNumberOf(L"50% of it"), 8);
    EXPECT_FALSE(trace.resourceNumberOf(L"50 of it"));
}

TEST_F(StringTraceTest, TheStringWithMostWordsOfItsOwnWins) {
    trace.remember(1, L"File %ls");
    trace.remember(2, L"File %ls is missing");
    EXPECT_EQ(trace.resourceNumberOf(L"File a.txt is missing"), 2);
    EXPECT_EQ(trace.resourceNumberOf(L"File a.txt"), 1);
}

TEST_F(StringTraceTest, AnExactTextBeatsAFormat) {
    trace.remember(1, L"%ls controls the light of everything");
    trace.remember(2, L"Sun controls the light of everything");
    EXPECT_EQ(trace.resourceNumberOf(L"Sun controls the light of everything"), 2);
}

TEST_F(StringTraceTest, AFormatOfNothingButInsertsClaimsNothing) {
    trace.remember(1, L"%ls");
    trace.remember(2, L"%ls%d");
    EXPECT_FALSE(trace.resourceNumberOf(L"anything"));
}

TEST_F(StringTraceTest, ANumberThatChangesItsTextLosesTheOldFormat) {
    trace.remember(1, L"File %ls");
    trace.remember(1, L"Folder");
    EXPECT_FALSE(trace.resourceNumberOf(L"File a.txt"));
}

}  // namespace workbench
