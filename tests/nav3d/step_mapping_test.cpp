#include "nav3d/step_mapping.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

struct SizeCase {
    double size;
    int position;
};
class StepSizeToSliderTest : public testing::TestWithParam<SizeCase> {};

TEST_P(StepSizeToSliderTest, GivesThePosition) {
    EXPECT_EQ(StepSizeToSlider(GetParam().size), GetParam().position);
}

INSTANTIATE_TEST_SUITE_P(Sizes, StepSizeToSliderTest,
                         testing::Values(SizeCase{0.0, 1}, SizeCase{1.0e-6, 1}, SizeCase{0.02, 4},
                                         SizeCase{0.5, 76}, SizeCase{1.0, 150}, SizeCase{6.0, 154},
                                         SizeCase{1000.0, 880}, SizeCase{1000.1, 880},
                                         SizeCase{10000.0, 920}, SizeCase{100000.0, 960},
                                         SizeCase{1000000.0, 1000}));

struct SizePositionCase {
    int position;
    double size;
};
class SliderToStepSizeTest : public testing::TestWithParam<SizePositionCase> {};

TEST_P(SliderToStepSizeTest, GivesTheSize) {
    EXPECT_DOUBLE_EQ(SliderToStepSize(GetParam().position), GetParam().size);
}

INSTANTIATE_TEST_SUITE_P(
    Positions, SliderToStepSizeTest,
    testing::Values(SizePositionCase{1, 0.01}, SizePositionCase{2, 0.02},
                    SizePositionCase{150, 1.5}, SizePositionCase{151, 1.36986301369863},
                    SizePositionCase{880, 730 * 1.36986301369863}, SizePositionCase{881, 1000.0},
                    SizePositionCase{919, 1000.0}, SizePositionCase{920, 10000.0},
                    SizePositionCase{959, 10000.0}, SizePositionCase{960, 100000.0},
                    SizePositionCase{999, 100000.0}, SizePositionCase{1000, 1000000.0}));

TEST(StepMapping, EachSegmentRisesWithThePosition) {
    for (int position = 2; position <= 1000; ++position) {
        const double rise = SliderToStepSize(position) - SliderToStepSize(position - 1);
        if (position == 151)
            EXPECT_LT(rise, 0.0) << "the segments don't meet";
        else
            EXPECT_GE(rise, 0.0) << position;
    }
}

TEST(StepMapping, SizesBeyondAWholeNumberStayAtItsEnds) {
    EXPECT_EQ(StepSizeToSlider(-1.0e300), std::numeric_limits<int>::min());
    EXPECT_EQ(StepsPerSecToSlider(1.0e300), std::numeric_limits<int>::max());
}

struct RateCase {
    double rate;
    int position;
};
class StepsPerSecToSliderTest : public testing::TestWithParam<RateCase> {};

TEST_P(StepsPerSecToSliderTest, GivesThePosition) {
    EXPECT_EQ(StepsPerSecToSlider(GetParam().rate), GetParam().position);
}

INSTANTIATE_TEST_SUITE_P(Rates, StepsPerSecToSliderTest,
                         testing::Values(RateCase{1.0, 10}, RateCase{2.0, 20}, RateCase{15.5, 155},
                                         RateCase{30.0, 300}));

TEST(StepMapping, RateIsDividedFirst) {
    for (int position = 10; position <= 300; ++position)
        EXPECT_EQ(SliderToStepsPerSec(position), position / 290.0 * 29.0);
    EXPECT_NEAR(SliderToStepsPerSec(300), 30.0, 1.0e-14);
    EXPECT_EQ(SliderToStepsPerSec(145), 14.5);
}

}  // namespace
