#include "controls/value_text.h"

#include "tests/palette/palette_fixture.h"
#include "tests/support/call_lines.h"
#include "workbench/editor/editor.h"

#include <string>
#include <vector>

namespace {

using Calls = std::vector<std::string>;

class ValueTextTest : public PaletteTest {
protected:
    void SetUp() override {
        PaletteTest::SetUp();
        show();
        set(L"LUPREC", 2);
    }
    void set(const wchar_t* name, const workbench::Value& value) {
        ASSERT_TRUE(bench().editor().set(name, value));
    }
    /// What was formatted, parsed and locked since the last look.
    Calls calls() {
        return support::callLines(bench().journal().take("call"),
                                  {"vxdbRToS", "vxdbAngToS", "vxdbDisToF", "vxdbAngToF",
                                   "VxAxDocLock::VxAxDocLock", "VxAxDocLock::~VxAxDocLock"});
    }
};

TEST_F(ValueTextTest, DistancesFollowTheDrawingsUnits) {
    EXPECT_EQ(FormatLinear(15.5), L"15.50");
    set(L"LUNITS", 4);
    EXPECT_EQ(FormatLinear(15.5), L"1'-3 1/2\"");
    EXPECT_EQ(parseLinear(L"1'-3 1/2\""), 15.5);
}

TEST_F(ValueTextTest, PlainNumbersFollowThePrecisionAlone) {
    set(L"LUNITS", 4);
    EXPECT_EQ(FormatDecimal(15.5), L"15.50");
    EXPECT_EQ(parseDecimal(L"15.5"), 15.5);
}

TEST_F(ValueTextTest, EntryIsRoundedToWhatIsShownOfIt) {
    EXPECT_DOUBLE_EQ(*parseDecimalAsShown(L"15.129"), 15.13);
}

TEST_F(ValueTextTest, DegreesAreReadWhateverTheUnits) {
    set(L"AUNITS", 3);
    EXPECT_NEAR(*parseDegrees(L"180"), 3.14159265, 1.0e-8);
    EXPECT_NEAR(*parseAngle(L"1.5"), 1.5, 1.0e-12);
}

TEST_F(ValueTextTest, AnglesFollowTheDrawingsUnitsAndAPrecisionOfTheirOwn) {
    constexpr double kAngle = 0.4;  // radians
    set(L"AUPREC", 3);
    EXPECT_EQ(FormatAngle(kAngle, -1), L"22.918");
    EXPECT_EQ(FormatAngle(kAngle, 1), L"22.9");
    EXPECT_EQ(FormatAngle(kAngle, 0), L"23");
    set(L"AUNITS", 3);
    EXPECT_EQ(FormatAngle(kAngle, -1), L"0.400r");
}

TEST_F(ValueTextTest, EachTextIsAskedForInItsUnitAndPrecision) {
    FormatLinear(0.5);
    EXPECT_EQ(calls(), Calls{"vxdbRToS(0.500000, -1, -1)"});
    FormatDecimal(0.5);
    EXPECT_EQ(calls(), Calls{"vxdbRToS(0.500000, 2, 2)"});
    FormatAngle(0.5, 3);
    EXPECT_EQ(calls(), Calls{"vxdbAngToS(0.500000, -1, 3)"});
    parseLinear(L"7");
    EXPECT_EQ(calls(), Calls{"vxdbDisToF(\"7\", -1)"});
    parseDecimal(L"7");
    EXPECT_EQ(calls(), Calls{"vxdbDisToF(\"7\", 2)"});
    parseAngle(L"7");
    EXPECT_EQ(calls(), Calls{"vxdbAngToF(\"7\", -1)"});
    parseDecimalAsShown(L"7");
    EXPECT_EQ(calls(), (Calls{"vxdbDisToF(\"7\", 2)", "vxdbRToS(7.000000, 2, 2)",
                              "vxdbDisToF(\"7.00\", 2)"}));
}

TEST_F(ValueTextTest, DegreesAreReadUnderALockOfTheDrawing) {
    parseDegrees(L"7");
    EXPECT_EQ(calls(), (Calls{"VxAxDocLock::VxAxDocLock(object, 1)", "vxdbAngToF(\"7\", 0)",
                              "VxAxDocLock::~VxAxDocLock()"}));
}

TEST_F(ValueTextTest, TextThatIsNoNumberGivesNothing) {
    EXPECT_FALSE(parseLinear(L"left").has_value());
    EXPECT_FALSE(parseDecimal(L"left").has_value());
    EXPECT_FALSE(parseDecimalAsShown(L"left").has_value());
    EXPECT_FALSE(parseAngle(L"left").has_value());
    EXPECT_FALSE(parseDegrees(L"left").has_value());
}

TEST_F(ValueTextTest, EntryWhoseShownTextCannotBeReadStandsAsItWasTyped) {
    failSecond("vxdbDisToF");
    EXPECT_EQ(parseDecimalAsShown(L"15.129"), 15.129);
}

TEST_F(ValueTextTest, WithoutADatabaseNothingIsWrittenOrRead) {
    bench().faults().fail("vxdbHostApplicationServices");
    calls();
    EXPECT_EQ(FormatLinear(1.0), L"");
    EXPECT_EQ(FormatDecimal(1.0), L"");
    EXPECT_EQ(FormatAngle(1.0, 2), L"");
    EXPECT_FALSE(parseLinear(L"1").has_value());
    EXPECT_FALSE(parseDecimalAsShown(L"1").has_value());
    EXPECT_FALSE(parseAngle(L"1").has_value());
    EXPECT_FALSE(parseDegrees(L"1").has_value());
    EXPECT_EQ(calls(), Calls{});
}

TEST_F(ValueTextTest, LocaleNumbersHaveGroupsAndNoLeadingZero) {
    EXPECT_STREQ(FormatLocaleInteger(1000000), L"1,000,000");
    EXPECT_STREQ(FormatLocaleReal(0.786, 3), L".786");
    EXPECT_STREQ(FormatLocaleReal(1e-06, 7), L".0000010");
}

TEST_F(ValueTextTest, OneOfEachStandsInTheSameMessage) {
    const wchar_t* real = FormatLocaleReal(1.5, 1);
    const wchar_t* integer = FormatLocaleInteger(7);
    EXPECT_STREQ(real, L"1.5");
    EXPECT_STREQ(integer, L"7");
}

struct LocaleCase {
    const char* locale;
    const wchar_t* integer;  // of 12345678
    const wchar_t* real;     // of 1234567.5 with two decimals
};

class LocaleNumberTest : public ValueTextTest, public testing::WithParamInterface<LocaleCase> {};

TEST_P(LocaleNumberTest, HasTheLocalesGroupsAndSeparators) {
    bench().setLocale(GetParam().locale);
    EXPECT_STREQ(FormatLocaleInteger(12345678), GetParam().integer);
    EXPECT_STREQ(FormatLocaleReal(1234567.5, 2), GetParam().real);
}

INSTANTIATE_TEST_SUITE_P(Locales, LocaleNumberTest,
                         testing::Values(LocaleCase{"en_US", L"12,345,678", L"1,234,567.50"},
                                         LocaleCase{"de_DE", L"12.345.678", L"1.234.567,50"},
                                         LocaleCase{"en_IN", L"1,23,45,678", L"12,34,567.50"}));

TEST_F(ValueTextTest, LocaleThatTellsOfNoGroupsHasNone) {
    fail("GetLocaleInfo");
    EXPECT_STREQ(FormatLocaleInteger(1000000), L"1000000");
}

TEST_F(ValueTextTest, NumberOfTwentyNineLettersIsTheLongest) {
    // Nineteen digits with six separators, the point and three decimals.
    EXPECT_STREQ(FormatLocaleReal(1.0e18, 3), L"1,000,000,000,000,000,000.000");
    EXPECT_STREQ(FormatLocaleReal(1.0e18, 4), L"");
}

TEST_F(ValueTextTest, NumberThatIsTooLongLeavesNothingOfTheOneBefore) {
    EXPECT_STREQ(FormatLocaleReal(1.5, 1), L"1.5");
    EXPECT_STREQ(FormatLocaleReal(1.0e40, 3), L"");
    EXPECT_STREQ(FormatLocaleInteger(7), L"7");
    fail("GetNumberFormat");
    EXPECT_STREQ(FormatLocaleInteger(8), L"");
}

}  // namespace
