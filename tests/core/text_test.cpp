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
    EXPECT_FALSE(equalNoCase(L"", L"1"));
    EXPECT_FALSE(equalNoCase(L"1", L""));
}

TEST(TextTest, FormatTakesNumbersAndWideTexts) {
    EXPECT_EQ(formatText(L"%8d", 40), L"      40");
    EXPECT_EQ(formatText(L"from %ls to %ls", L"0%", L"90%"), L"from 0% to 90%");
}

TEST(TextTest, FormatTakesTextsOfAnyLengthWhole) {
    for (const std::size_t length : {0U, 1U, 254U, 255U, 256U, 257U, 1023U, 1024U}) {
        const VxString text(length, L'x');
        EXPECT_EQ(formatText(L"%ls", text.c_str()), text) << length;
    }
}

TEST(TextTest, LongTextFits) {
    const VxString longText(3000, L'x');
    EXPECT_EQ(formatText(L"%ls!", longText.c_str()), longText + L"!");
}

TEST(TextTest, TextBeyondAllBoundsIsEmpty) {
    const VxString endless(100'000, L'x');
    EXPECT_EQ(formatText(L"%ls", endless.c_str()), L"");
}

TEST(TextTest, TrimmingTakesTheBlanksAroundATextAndNoneInside) {
    EXPECT_EQ(trimmed(L"  40 mm \t\n"), L"40 mm");
    EXPECT_EQ(trimmed(L"40"), L"40");
    EXPECT_EQ(trimmed(L" 4"), L"4");
    EXPECT_EQ(trimmed(L"4 "), L"4");
}

TEST(TextTest, OfBlanksAloneNothingIsLeft) {
    EXPECT_EQ(trimmed(L""), L"");
    EXPECT_EQ(trimmed(L" "), L"");
    EXPECT_EQ(trimmed(L" \t\r\n "), L"");
}

}  // namespace
