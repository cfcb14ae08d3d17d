#include "workbench/editor/angle_text.h"

#include "workbench/base/text.h"

#include <gtest/gtest.h>

#include <string>

namespace workbench {
namespace {

constexpr double kPi = 3.14159265358979323846;

struct WrittenCase {
    double degrees;
    AngleUnit unit;
    int precision;
    const wchar_t* text;
};
class WrittenAngleTest : public testing::TestWithParam<WrittenCase> {};

TEST_P(WrittenAngleTest, StandsInItsUnit) {
    const WrittenCase& row = GetParam();
    EXPECT_EQ(toUtf8(formatAngle(row.degrees / 180.0 * kPi, row.unit, row.precision)),
              toUtf8(row.text));
}

INSTANTIATE_TEST_SUITE_P(
    Units, WrittenAngleTest,
    testing::Values(WrittenCase{45.5, AngleUnit::Degrees, 0, L"46"},
                    WrittenCase{45.5, AngleUnit::Degrees, 3, L"45.500"},
                    WrittenCase{0.0, AngleUnit::Degrees, 2, L"0.00"},
                    WrittenCase{-90.0, AngleUnit::Degrees, 1, L"270.0"},
                    WrittenCase{45.5, AngleUnit::DegreesMinutesSeconds, 0, L"46d"},
                    WrittenCase{45.5, AngleUnit::DegreesMinutesSeconds, 2, L"45d30'"},
                    WrittenCase{45.5125, AngleUnit::DegreesMinutesSeconds, 4, L"45d30'45\""},
                    WrittenCase{45.5125, AngleUnit::DegreesMinutesSeconds, 6, L"45d30'45.00\""},
                    WrittenCase{29.9999999, AngleUnit::DegreesMinutesSeconds, 4, L"30d0'0\""},
                    WrittenCase{45.0, AngleUnit::Grads, 2, L"50.00g"},
                    WrittenCase{180.0, AngleUnit::Radians, 4, L"3.1416r"},
                    WrittenCase{0.0, AngleUnit::Surveyors, 4, L"E"},
                    WrittenCase{90.0, AngleUnit::Surveyors, 4, L"N"},
                    WrittenCase{180.0, AngleUnit::Surveyors, 4, L"W"},
                    WrittenCase{270.0, AngleUnit::Surveyors, 4, L"S"},
                    WrittenCase{45.5, AngleUnit::Surveyors, 4, L"N 44d30'0\" E"},
                    WrittenCase{135.0, AngleUnit::Surveyors, 0, L"N 45d W"},
                    WrittenCase{225.0, AngleUnit::Surveyors, 0, L"S 45d W"},
                    WrittenCase{300.0, AngleUnit::Surveyors, 0, L"S 30d E"}));

struct ReadCase {
    const wchar_t* text;
    AngleUnit unit;
    double degrees;
};
class ReadAngleTest : public testing::TestWithParam<ReadCase> {};

TEST_P(ReadAngleTest, MeansItsAngle) {
    const std::optional<double> angle = parseAngle(GetParam().text, GetParam().unit);
    ASSERT_TRUE(angle.has_value()) << toUtf8(GetParam().text);
    EXPECT_NEAR(*angle, GetParam().degrees / 180.0 * kPi, 1.0e-9);
}

INSTANTIATE_TEST_SUITE_P(Texts, ReadAngleTest,
                         testing::Values(ReadCase{L"45.5", AngleUnit::Degrees, 45.5},
                                         ReadCase{L" 45.5 ", AngleUnit::Degrees, 45.5},
                                         ReadCase{L"-45", AngleUnit::Degrees, -45.0},
                                         ReadCase{L"4.5e1", AngleUnit::Degrees, 45.0},
                                         ReadCase{L"45", AngleUnit::DegreesMinutesSeconds, 45.0},
                                         ReadCase{L"45d30'", AngleUnit::Degrees, 45.5},
                                         ReadCase{L"45D30'45\"", AngleUnit::Radians, 45.5125},
                                         ReadCase{L"-45d30'", AngleUnit::Degrees, -45.5},
                                         ReadCase{L"50", AngleUnit::Grads, 45.0},
                                         ReadCase{L"50g", AngleUnit::Degrees, 45.0},
                                         ReadCase{L"1r", AngleUnit::Degrees, 180.0 / kPi},
                                         ReadCase{L"1", AngleUnit::Radians, 180.0 / kPi},
                                         ReadCase{L"N 44d30'0\" E", AngleUnit::Surveyors, 45.5},
                                         ReadCase{L"s 30 e", AngleUnit::Degrees, 300.0},
                                         ReadCase{L"N45W", AngleUnit::Degrees, 135.0}));

class NoAngleTest : public testing::TestWithParam<const wchar_t*> {};

TEST_P(NoAngleTest, MeansNothing) {
    for (const AngleUnit unit : {AngleUnit::Degrees, AngleUnit::Radians, AngleUnit::Surveyors})
        EXPECT_FALSE(parseAngle(GetParam(), unit).has_value()) << toUtf8(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Texts, NoAngleTest,
                         testing::Values(L"", L"  ", L"wide", L"45,5", L"4 5", L"45d30'x",
                                         L"45d75'", L"N 95 E", L"NE", L"g", L"--1",
                                         L"\u0664\u0665"));

TEST(AngleText, LongTextIsReadOrRefusedWhole) {
    EXPECT_FALSE(parseAngle(std::wstring(10000, L'x'), AngleUnit::Degrees).has_value());
    EXPECT_FALSE(parseAngle(std::wstring(10000, L'9'), AngleUnit::Degrees).has_value());
}

TEST(AngleText, EachUnitReadsWhatItWrites) {
    for (int unit = 0; unit <= 4; ++unit) {
        for (double degrees = 0.0; degrees < 360.0; degrees += 7.5) {
            const auto mode = static_cast<AngleUnit>(unit);
            const double angle = degrees / 180.0 * kPi;
            const std::wstring text = formatAngle(angle, mode, 8);
            const std::optional<double> read = parseAngle(text, mode);
            if (mode == AngleUnit::Surveyors && text.size() == 1)
                continue;
            ASSERT_TRUE(read.has_value()) << toUtf8(text);
            EXPECT_NEAR(*read, angle, 1.0e-7) << toUtf8(text);
        }
    }
}

}  // namespace
}  // namespace workbench
