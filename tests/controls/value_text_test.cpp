#include "controls/value_text.h"

#include "tests/palette/palette_fixture.h"
#include "workbench/editor/editor.h"

namespace {

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

TEST_F(ValueTextTest, WithoutADatabaseNothingIsWrittenOrRead) {
    bench().faults().fail("vxdbHostApplicationServices");
    EXPECT_EQ(FormatLinear(1.0), L"");
    EXPECT_EQ(FormatDecimal(1.0), L"");
    EXPECT_EQ(FormatAngle(1.0, 2), L"");
    EXPECT_FALSE(parseLinear(L"1").has_value());
    EXPECT_FALSE(parseDecimalAsShown(L"1").has_value());
    EXPECT_FALSE(parseAngle(L"1").has_value());
    EXPECT_FALSE(parseDegrees(L"1").has_value());
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

TEST_F(ValueTextTest, NumberThatIsTooLongGivesNothing) {
    EXPECT_STREQ(FormatLocaleReal(1.0e40, 3), L"");
}

}  // namespace
