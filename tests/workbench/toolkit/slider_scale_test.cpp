#include "workbench/toolkit/slider_scale.h"

#include <gtest/gtest.h>

namespace workbench {
namespace {

constexpr SliderScale kFade{0, 90, 100};  // 90 pixels to travel: one a position

TEST(SliderScaleTest, TheEndsOfTheRangeStandAtTheEndsOfTheTrack) {
    EXPECT_EQ(kFade.middleAt(0), 5);
    EXPECT_EQ(kFade.middleAt(90), 95);
    EXPECT_EQ(kFade.positionAt(5), 0);
    EXPECT_EQ(kFade.positionAt(95), 90);
}

TEST(SliderScaleTest, PositionsOutsideGoToTheNearerEnd) {
    EXPECT_EQ(kFade.clamp(-1), 0);
    EXPECT_EQ(kFade.clamp(91), 90);
    EXPECT_EQ(kFade.positionAt(-40), 0);
    EXPECT_EQ(kFade.positionAt(4000), 90);
    EXPECT_EQ(kFade.middleAt(1000), 95);
}

TEST(SliderScaleTest, PlacesRoundToTheNearestPosition) {
    constexpr SliderScale kCoarse{-10, 10, 110};  // five pixels a position
    EXPECT_EQ(kCoarse.positionAt(55), 0);
    EXPECT_EQ(kCoarse.positionAt(57), 0);
    EXPECT_EQ(kCoarse.positionAt(58), 1);
    EXPECT_EQ(kCoarse.middleAt(-10), 5);
    EXPECT_EQ(kCoarse.middleAt(3), 70);
}

TEST(SliderScaleTest, EveryPositionComesBackWhereThereArePixelsEnough) {
    for (int position = 0; position <= 90; ++position)
        EXPECT_EQ(kFade.positionAt(kFade.middleAt(position)), position);
}

TEST(SliderScaleTest, ASliderWithoutWidthStaysAtItsLowest) {
    constexpr SliderScale kNone{3, 9, 0};
    EXPECT_EQ(kNone.positionAt(50), 3);
    EXPECT_EQ(kNone.middleAt(9), 5);
}

TEST(SliderScaleTest, AnEmptyOrTurnedRangeHasOnePosition) {
    EXPECT_EQ((SliderScale{7, 7, 100}.positionAt(90)), 7);
    EXPECT_EQ((SliderScale{7, 2, 100}.clamp(5)), 7);
}

TEST(SliderScaleTest, TheThumbIsTenPixelsWide) {
    EXPECT_TRUE(kFade.isOnThumb(40, 35));
    EXPECT_TRUE(kFade.isOnThumb(35, 35));
    EXPECT_TRUE(kFade.isOnThumb(45, 35));
    EXPECT_FALSE(kFade.isOnThumb(34, 35));
    EXPECT_FALSE(kFade.isOnThumb(46, 35));
}

}  // namespace
}  // namespace workbench
