#include "workbench/toolkit/picture_table.h"

#include "workbench/base/input_error.h"

#include <gtest/gtest.h>

namespace workbench {
namespace {

TEST(PictureTableTest, APictureLivesUntilItIsGivenBack) {
    PictureTable pictures;
    const HBITMAP first = pictures.add("RCDATA_A", {1});
    const HBITMAP second = pictures.add("b.png", {2});
    EXPECT_NE(first, second);
    EXPECT_EQ(pictures.source(first), "RCDATA_A");
    EXPECT_EQ(pictures.source(second), "b.png");
    EXPECT_EQ(pictures.liveCount(), 2U);

    pictures.release(first);
    EXPECT_EQ(pictures.liveCount(), 1U);
    EXPECT_EQ(pictures.source(first), "");
}

TEST(PictureTableTest, HandlesAreNeverGivenOutAgain) {
    PictureTable pictures;
    const HBITMAP gone = pictures.add("a", {1});
    pictures.release(gone);
    EXPECT_NE(pictures.add("b", {1}), gone);
}

TEST(PictureTableTest, NullAndStaleHandlesAreIgnored) {
    PictureTable pictures;
    const HBITMAP gone = pictures.add("a", {1});
    pictures.release(gone);
    pictures.release(gone);
    pictures.release(nullptr);
    EXPECT_EQ(pictures.liveCount(), 0U);
    EXPECT_EQ(pictures.source(nullptr), "");
}

TEST(PictureTableTest, PixelsOfAStaleHandleOrBrokenBytesAreAnError) {
    PictureTable pictures;
    EXPECT_THROW(pictures.pixels(nullptr), InputError);
    EXPECT_THROW(pictures.pixels(pictures.add("a", {1, 2, 3})), InputError);
    EXPECT_THROW(pictures.finePixels(nullptr), InputError);
    EXPECT_THROW(pictures.finePixels(pictures.add("a", {1, 2, 3})), InputError) << "it has none";
}

TEST(PictureTableTest, ADecodedPictureIsGivenOutAsItIs) {
    PictureTable table;
    PngPicture pixels;
    pixels.width = 1;
    pixels.height = 1;
    pixels.rgba = {1, 2, 3, 4};
    const HBITMAP picture = table.addDecoded("#7", pixels);
    EXPECT_EQ(table.source(picture), "#7");
    EXPECT_EQ(table.pixels(picture).rgba, pixels.rgba);
    table.release(picture);
    EXPECT_EQ(table.liveCount(), 0U);
}

}  // namespace
}  // namespace workbench
