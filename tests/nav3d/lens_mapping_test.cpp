#include "nav3d/lens_mapping.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

struct PositionCase {
    int position;
    double lens;
};
class SliderToLensTest : public testing::TestWithParam<PositionCase> {};

TEST_P(SliderToLensTest, GivesTheLensOfThePosition) {
    EXPECT_DOUBLE_EQ(SliderToLens(GetParam().position), GetParam().lens);
}

INSTANTIATE_TEST_SUITE_P(Positions, SliderToLensTest,
                         testing::Values(PositionCase{0, 0.786}, PositionCase{1, 0.88076},
                                         PositionCase{149, 14.90524}, PositionCase{150, 15.0},
                                         PositionCase{155, 15.5}, PositionCase{500, 50.0},
                                         PositionCase{2000, 200.0}, PositionCase{2001, 399.6},
                                         PositionCase{2500, 100000.0}));

struct LensCase {
    double lens;
    int position;
};
class LensToSliderTest : public testing::TestWithParam<LensCase> {};

TEST_P(LensToSliderTest, GivesThePositionOfTheLens) {
    EXPECT_EQ(LensToSlider(GetParam().lens), GetParam().position);
}

INSTANTIATE_TEST_SUITE_P(Lenses, LensToSliderTest,
                         testing::Values(LensCase{100000.1, 2500}, LensCase{100000.0, 2500},
                                         LensCase{0.7859, 0}, LensCase{-3.0, 0}, LensCase{0.786, 8},
                                         LensCase{14.90524, 157}, LensCase{14.999, 158},
                                         LensCase{15.0, 150}, LensCase{15.5, 150},
                                         LensCase{50.0, 500}, LensCase{199.99, 1990},
                                         LensCase{200.0, 2000}, LensCase{200.1, 2000},
                                         LensCase{399.6, 2001}));

TEST(LensMapping, LongestLensIsExactlyAHundredThousand) {
    EXPECT_EQ(SliderToLens(2500), 100000.0);
}

TEST(LensMapping, OnlyTheTopSegmentComesBackToEveryPosition) {
    for (int position = 0; position <= 2500; ++position) {
        const int back = LensToSlider(SliderToLens(position));
        if (position < 150)
            EXPECT_NEAR(back, position + 8, 1) << position;
        else if (position <= 2000)
            EXPECT_EQ(back, position / 10 * 10) << position;
        else
            EXPECT_EQ(back, position);
    }
}

TEST(LensMapping, LensOfFiftySeesAboutFortyDegrees) {
    constexpr double kDegrees = 180.0 / 3.14159265358979323846;
    EXPECT_NEAR(lensToAngle(50.0) * kDegrees, 39.5978, 0.0001);
}

TEST(LensMapping, LensAndAngleAreInverse) {
    for (const double lens : {0.786, 15.0, 50.0, 200.0, 100000.0})
        EXPECT_NEAR(angleToLens(lensToAngle(lens)), lens, lens * 1.0e-9);
}

TEST(LensMapping, ViewFieldHasTheFramesDiagonal) {
    const ViewField field = viewFieldOf(100.0, 1.5, 50.0);
    EXPECT_DOUBLE_EQ(field.width / field.height, 1.5);
    EXPECT_NEAR(std::hypot(field.width, field.height), 100.0 * 42.0 / 50.0, 1.0e-9);
}

TEST(LensMapping, LimitsOfTheAngleAreInDegrees) {
    EXPECT_NEAR(kNarrowestAngle, 8.72664625997e-5, 1.0e-15);
    EXPECT_NEAR(kWidestAngle, 3.05432619099, 1.0e-11);
}

}  // namespace
