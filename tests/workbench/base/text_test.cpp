#include "workbench/base/text.h"

#include <gtest/gtest.h>

namespace workbench {

TEST(TextTest, WideTextAndUtf8AreTheSameText) {
    const std::string text = "Wall \xC3\xA9 \xE2\x82\xAC \xF0\x9F\x8F\xA0";
    EXPECT_EQ(toWide(text), L"Wall \u00e9 \u20ac \U0001F3E0");
    EXPECT_EQ(toUtf8(toWide(text)), text);
}

TEST(TextTest, BytesThatBelongToNoCharacterAreReplaced) {
    EXPECT_EQ(toWide("a\xFF"
                     "b"),
              L"a\uFFFDb");
    EXPECT_EQ(toWide("a\xC3"), L"a\uFFFD");
    EXPECT_EQ(toWide("\xC3("), L"\uFFFD(");
    EXPECT_EQ(toWide("\xED\xA0\x80").front(), L'\uFFFD');
}

TEST(TextTest, UnitsThatStandForNoCharacterAreReplaced) {
    EXPECT_EQ(toUtf8(std::wstring(1, static_cast<wchar_t>(0xD800))), "\xEF\xBF\xBD");
}

TEST(TextTest, NamesAreEqualWhateverTheirCase) {
    EXPECT_TRUE(equalNoCase(L"TileMode", L"TILEMODE"));
    EXPECT_FALSE(equalNoCase(L"TILEMODE", L"TILEMODE2"));
    EXPECT_FALSE(equalNoCase(L"\u00e9", L"\u00c9"));
    EXPECT_TRUE(equalNoCase("Walls-Inner", "wALLS-iNNER"));
    EXPECT_FALSE(equalNoCase("Walls", "Wall"));
    EXPECT_TRUE(equalNoCase("", ""));
    EXPECT_EQ(toUpper(L"dash_1\u00e9"), L"DASH_1\u00e9");
}

}  // namespace workbench
