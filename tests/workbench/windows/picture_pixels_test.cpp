#include "workbench/windows/picture_pixels.h"

#include <gtest/gtest.h>

namespace workbench {
namespace {

constexpr COLORREF kRed = 0x0000ff;
constexpr COLORREF kGreen = 0x00ff00;

/// A picture one pixel high: red, green.
PngPicture redGreen() {
    PngPicture picture;
    picture.width = 2;
    picture.height = 1;
    picture.rgba = {255, 0, 0, 255, 0, 255, 0, 255};
    return picture;
}

TEST(PicturePixelsTest, AColourIsThatOfThePixelAndOfNoneOutside) {
    EXPECT_EQ(colourAt(redGreen(), 0, 0), kRed);
    EXPECT_EQ(colourAt(redGreen(), 1, 0), kGreen);
    EXPECT_EQ(colourAt(redGreen(), 2, 0), CLR_INVALID);
    EXPECT_EQ(colourAt(redGreen(), 0, 1), CLR_INVALID);
    EXPECT_EQ(colourAt(redGreen(), -1, 0), CLR_INVALID);
}

TEST(PicturePixelsTest, OnlyPixelsOfTheColourBecomeTransparent) {
    EXPECT_EQ(withoutColour(redGreen(), kRed).rgba,
              (std::vector<std::uint8_t>{255, 0, 0, 0, 0, 255, 0, 255}));
    EXPECT_EQ(withoutColour(redGreen(), CLR_INVALID).rgba, redGreen().rgba);
}

TEST(PicturePixelsTest, ColumnsBeyondTheEdgeAreTransparent) {
    const PngPicture columns = columnsOf(redGreen(), 1, 2);
    EXPECT_EQ(columns.width, 2U);
    EXPECT_EQ(columns.rgba, (std::vector<std::uint8_t>{0, 255, 0, 255, 0, 0, 0, 0}));
}

TEST(PicturePixelsTest, ALargerPictureRepeatsItsPixels) {
    const PngPicture large = scaled(redGreen(), {4, 2});
    EXPECT_EQ(large.height, 2U);
    EXPECT_EQ(colourAt(large, 1, 1), kRed);
    EXPECT_EQ(colourAt(large, 2, 0), kGreen);
}

TEST(PicturePixelsTest, AnEmptyPictureShowsNothing) {
    EXPECT_EQ(emptyPicture({2, 1}).rgba, std::vector<std::uint8_t>(8, 0));
}

}  // namespace
}  // namespace workbench
