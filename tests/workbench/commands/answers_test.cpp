#include "workbench/commands/answers.h"

#include <gtest/gtest.h>

namespace workbench {

TEST(AnswersTest, NumbersAreTakenWhole) {
    EXPECT_EQ(parseNumber(L"4"), 4.0);
    EXPECT_EQ(parseNumber(L"-4.5"), -4.5);
    EXPECT_EQ(parseNumber(L"1e2"), 100.0);
    for (const wchar_t* text : {L"", L"x", L"4x", L"4 5", L"1,5"})
        EXPECT_EQ(parseNumber(text), std::nullopt) << text;
}

TEST(AnswersTest, PointsHaveTwoOrThreeCoordinates) {
    EXPECT_EQ(parsePoint(L"1,2"), (drawing::Vec3{1, 2, 0}));
    EXPECT_EQ(parsePoint(L"1,2,-3.5"), (drawing::Vec3{1, 2, -3.5}));
    for (const wchar_t* text : {L"", L"1", L"1,x", L"1,2,3,4"})
        EXPECT_EQ(parsePoint(text), std::nullopt) << text;
}

TEST(AnswersTest, AnOptionIsChosenByItsCapitalsAtLeast) {
    EXPECT_TRUE(choosesOption(L"lo", L"LOck"));
    EXPECT_TRUE(choosesOption(L"LOCK", L"LOck"));
    EXPECT_TRUE(choosesOption(L"_s", L"Set"));
    EXPECT_FALSE(choosesOption(L"l", L"LOck"));
    EXPECT_FALSE(choosesOption(L"locked", L"LOck"));
    EXPECT_FALSE(choosesOption(L"x", L"Set"));
    EXPECT_FALSE(choosesOption(L"", L"Set"));
}

TEST(AnswersTest, ListsAreSplitAtCommas) {
    EXPECT_EQ(splitList(L"Walls, Ground floor ,,Roof"),
              (std::vector<std::wstring>{L"Walls", L"Ground floor", L"Roof"}));
    EXPECT_EQ(splitList(L" , "), std::vector<std::wstring>{});
}

TEST(AnswersTest, PatternsHaveStarsAndQuestionMarks) {
    EXPECT_TRUE(fitsPattern(L"Walls", L"*"));
    EXPECT_TRUE(fitsPattern(L"Walls", L"w*S"));
    EXPECT_TRUE(fitsPattern(L"A1", L"A?"));
    EXPECT_FALSE(fitsPattern(L"A", L"A?"));
    EXPECT_FALSE(fitsPattern(L"Walls", L"Wall"));
    EXPECT_TRUE(fitsPattern(L"", L"*"));
}

TEST(AnswersTest, ValuesAreShownAsEntered) {
    EXPECT_EQ(showValue(Value(-5)), L"-5");
    EXPECT_EQ(showValue(Value(2.5)), L"2.5");
    EXPECT_EQ(showValue(Value("Walls")), L"Walls");
    EXPECT_EQ(showValue(Value()), L"");
}

}  // namespace workbench
