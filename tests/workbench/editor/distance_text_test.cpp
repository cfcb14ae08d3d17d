#include "workbench/editor/distance_text.h"

#include "workbench/base/text.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace workbench {

struct DistanceCase {
    const wchar_t* text;
    LinearUnit unit;
    double value;

    friend void PrintTo(const DistanceCase& shown, std::ostream* out) {
        *out << '"' << toUtf8(shown.text) << '"';
    }
};

class DistanceTextTest : public testing::TestWithParam<DistanceCase> {};

TEST_P(DistanceTextTest, TellsTheDistance) {
    const std::optional<double> distance = parseDistance(GetParam().text, GetParam().unit);
    ASSERT_TRUE(distance);
    EXPECT_DOUBLE_EQ(*distance, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(PlainNumbers, DistanceTextTest,
                         testing::Values(DistanceCase{L"45", LinearUnit::Decimal, 45.0},
                                         DistanceCase{L"  45  ", LinearUnit::Decimal, 45.0},
                                         DistanceCase{L"-45", LinearUnit::Decimal, -45.0},
                                         DistanceCase{L"+4.5", LinearUnit::Decimal, 4.5},
                                         DistanceCase{L".5", LinearUnit::Decimal, 0.5},
                                         DistanceCase{L"5.", LinearUnit::Decimal, 5.0},
                                         DistanceCase{L"0", LinearUnit::Scientific, 0.0},
                                         DistanceCase{L"1.5E+01", LinearUnit::Scientific, 15.0},
                                         DistanceCase{L"15e-1", LinearUnit::Decimal, 1.5},
                                         DistanceCase{L"7", LinearUnit::Architectural, 7.0}));

INSTANTIATE_TEST_SUITE_P(Fractions, DistanceTextTest,
                         testing::Values(DistanceCase{L"3/4", LinearUnit::Fractional, 0.75},
                                         DistanceCase{L"2 1/2", LinearUnit::Fractional, 2.5},
                                         DistanceCase{L"2-1/2", LinearUnit::Fractional, 2.5},
                                         DistanceCase{L"-2-1/2", LinearUnit::Decimal, -2.5},
                                         DistanceCase{L"1/8", LinearUnit::Architectural, 0.125}));

INSTANTIATE_TEST_SUITE_P(
    FeetAndInches, DistanceTextTest,
    testing::Values(DistanceCase{L"5'", LinearUnit::Architectural, 60.0},
                    DistanceCase{L"6\"", LinearUnit::Engineering, 6.0},
                    DistanceCase{L"5'-6 1/2\"", LinearUnit::Architectural, 66.5},
                    DistanceCase{L"5'6-1/2\"", LinearUnit::Architectural, 66.5},
                    DistanceCase{L"5' 6", LinearUnit::Architectural, 66.0},
                    DistanceCase{L"1'-3.5\"", LinearUnit::Engineering, 15.5},
                    DistanceCase{L"1.5'", LinearUnit::Engineering, 18.0},
                    DistanceCase{L"-5'-6\"", LinearUnit::Architectural, -66.0}));

struct BadDistance {
    const wchar_t* text;
    LinearUnit unit;

    friend void PrintTo(const BadDistance& shown, std::ostream* out) {
        *out << '"' << toUtf8(shown.text) << '"';
    }
};

class BadDistanceTextTest : public testing::TestWithParam<BadDistance> {};

TEST_P(BadDistanceTextTest, IsNoDistance) {
    EXPECT_FALSE(parseDistance(GetParam().text, GetParam().unit));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, BadDistanceTextTest,
    testing::Values(
        BadDistance{L"", LinearUnit::Decimal}, BadDistance{L"   ", LinearUnit::Decimal},
        BadDistance{L"abc", LinearUnit::Decimal}, BadDistance{L"4x", LinearUnit::Decimal},
        BadDistance{L"4 5", LinearUnit::Decimal}, BadDistance{L"--4", LinearUnit::Decimal},
        BadDistance{L".", LinearUnit::Decimal}, BadDistance{L"-", LinearUnit::Decimal},
        BadDistance{L"1/0", LinearUnit::Decimal}, BadDistance{L"1/", LinearUnit::Decimal},
        BadDistance{L"1e", LinearUnit::Decimal}, BadDistance{L"1e999", LinearUnit::Decimal},
        BadDistance{L"5'", LinearUnit::Decimal}, BadDistance{L"5'", LinearUnit::Fractional},
        BadDistance{L"6\"", LinearUnit::Scientific}, BadDistance{L"5'x", LinearUnit::Architectural},
        BadDistance{L"5'6\"7", LinearUnit::Architectural}));

}  // namespace workbench
