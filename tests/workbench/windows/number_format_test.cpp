#include "workbench/windows/number_format.h"

#include <gtest/gtest.h>

namespace workbench {
namespace {

NUMBERFMT format(UINT decimals, UINT grouping = 3, BOOL leadingZero = 0) {
    NUMBERFMT format;
    format.decimals = decimals;
    format.grouping = grouping;
    format.leadingZero = leadingZero;
    format.decimalSeparator = L".";
    format.thousandSeparator = L",";
    return format;
}

TEST(NumberFormat, GroupsDigitsFromTheRight) {
    EXPECT_EQ(formatNumber(L"1234567", format(0)), L"1,234,567");
    EXPECT_EQ(formatNumber(L"1234567", format(0, 32)), L"12,34,567");
    EXPECT_EQ(formatNumber(L"1234567", format(0, 30)), L"1234,567");
    EXPECT_EQ(formatNumber(L"1234567", format(0, 0)), L"1234567");
    EXPECT_EQ(formatNumber(L"123", format(0)), L"123");
}

TEST(NumberFormat, LeadingZeroStandsOnlyWhereItIsAskedFor) {
    EXPECT_EQ(formatNumber(L"0.786", format(3)), L".786");
    EXPECT_EQ(formatNumber(L"0.786", format(3, 3, 1)), L"0.786");
    EXPECT_EQ(formatNumber(L"0", format(0)), L"0");
}

TEST(NumberFormat, RoundsAndFillsTheDecimals) {
    EXPECT_EQ(formatNumber(L"1.5", format(3)), L"1.500");
    EXPECT_EQ(formatNumber(L"999.996", format(2)), L"1,000.00");
    EXPECT_EQ(formatNumber(L"2.345", format(2)), L"2.35");
}

TEST(NumberFormat, SignStandsInFrontAndZeroHasNone) {
    EXPECT_EQ(formatNumber(L"-1234", format(0)), L"-1,234");
    EXPECT_EQ(formatNumber(L"-0.001", format(2)), L".00");
}

TEST(NumberFormat, OtherTextsAreNoNumbers) {
    for (const wchar_t* text : {L"", L"-", L".", L"1e5", L"1,5", L" 1"})
        EXPECT_FALSE(formatNumber(text, format(1)).has_value());
}

struct LocaleCase {
    const char* name;
    const wchar_t* decimal;
    const wchar_t* thousand;
    const wchar_t* grouping;
};
class LocaleInfoTest : public testing::TestWithParam<LocaleCase> {};

TEST_P(LocaleInfoTest, TellsSeparatorsAndGroups) {
    EXPECT_EQ(localeInfo(GetParam().name, LOCALE_SDECIMAL), GetParam().decimal);
    EXPECT_EQ(localeInfo(GetParam().name, LOCALE_STHOUSAND), GetParam().thousand);
    EXPECT_EQ(localeInfo(GetParam().name, LOCALE_SGROUPING), GetParam().grouping);
    EXPECT_EQ(localeInfo(GetParam().name, 4711), L"");
}

INSTANTIATE_TEST_SUITE_P(Locales, LocaleInfoTest,
                         testing::Values(LocaleCase{"en_US", L".", L",", L"3;0"},
                                         LocaleCase{"de_DE", L",", L".", L"3;0"},
                                         LocaleCase{"en_IN", L".", L",", L"3;2;0"}));

}  // namespace
}  // namespace workbench
