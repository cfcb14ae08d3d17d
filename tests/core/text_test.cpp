#include "core/text.h"

#include <gtest/gtest.h>

namespace {

TEST(TextTest, CaseIsIgnored) {
    EXPECT_TRUE(equalNoCase(L"CleanScreenState", L"CLEANSCREENSTATE"));
    EXPECT_TRUE(equalNoCase(L"", L""));
}

TEST(TextTest, LengthAndLettersCount) {
    EXPECT_FALSE(equalNoCase(L"Yes", L"Yes "));
    EXPECT_FALSE(equalNoCase(L"1", L"0"));
}

TEST(TextTest, FormatTakesNumbersAndWideTexts) {
    EXPECT_EQ(formatText(L"%8d", 40), L"      40");
    EXPECT_EQ(formatText(L"from %ls to %ls", L"0%", L"90%"), L"from 0% to 90%");
}

TEST(TextTest, LongTextFits) {
    const VxString longText(3000, L'x');
    EXPECT_EQ(formatText(L"%ls!", longText.c_str()), longText + L"!");
}

TEST(TextTest, TextBeyondAllBoundsIsEmpty) {
    const VxString endless(100'000, L'x');
    EXPECT_EQ(formatText(L"%ls", endless.c_str()), L"");
}

}  // namespace
