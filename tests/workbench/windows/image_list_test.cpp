#include "workbench/windows/image_list.h"

#include "tests/workbench/windows/window_fixture.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/picture_pixels.h"

namespace workbench {

namespace {

constexpr COLORREF kMask = 0xff00ff;

/// A strip of two pictures of one pixel: red, and the colour of what is not drawn.
PngPicture strip() {
    PngPicture picture;
    picture.width = 2;
    picture.height = 1;
    picture.rgba = {255, 0, 0, 255, 255, 0, 255, 255};
    return picture;
}

class ImageListTest : public WindowTest {
protected:
    ImageListTest() { list.Create(1, 1, ILC_COLOR24 | ILC_MASK, 0, 4); }

    Toolkit& toolkit() { return Workbench::current().toolkit(); }
    const ImageList& known() { return *windows().gdi().findImageList(list.m_hImageList); }
    int addStrip() {
        CBitmap bitmap;
        bitmap.m_hBitmap = toolkit().pictures().addDecoded("#7", strip());
        return list.Add(&bitmap, kMask);
    }

    CImageList list;
};

}  // namespace

TEST_F(ImageListTest, AStripGivesItsPicturesWithTheirPlacesAndWithoutTheMask) {
    EXPECT_EQ(addStrip(), 0);
    EXPECT_EQ(addStrip(), 2);
    EXPECT_EQ(list.GetImageCount(), 4);
    EXPECT_EQ(known().at(1)->source, "#7:1");
    EXPECT_EQ(known().at(0)->picture.rgba[3], 255);
    EXPECT_EQ(known().at(1)->picture.rgba[3], 0);
    EXPECT_EQ(known().at(4), nullptr);
}

TEST_F(ImageListTest, NothingIsAddedOfABitmapThatDoesNotFit) {
    CBitmap none;
    EXPECT_EQ(list.Add(&none, kMask), -1);
    CImageList large;
    large.Create(16, 16, ILC_COLOR24, 0, 4);
    CBitmap bitmap;
    bitmap.m_hBitmap = toolkit().pictures().addDecoded("#7", strip());
    EXPECT_EQ(large.Add(&bitmap, kMask), -1);
    EXPECT_EQ(large.GetImageCount(), 0);
}

TEST_F(ImageListTest, AnIconCarriesAPictureFromOneListToAnother) {
    addStrip();
    CImageList other;
    other.Create(2, 2, ILC_COLOR24, 0, 4);
    EXPECT_TRUE(other.SetImageCount(1));
    const HICON icon = list.ExtractIcon(0);
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(other.Replace(0, icon), 0);
    EXPECT_EQ(other.Replace(1, icon), -1);
    EXPECT_EQ(other.Replace(-1, icon), -1);
    EXPECT_TRUE(DestroyIcon(icon));
    EXPECT_EQ(other.Replace(0, icon), -1);
    const ImageList& target = *windows().gdi().findImageList(other.m_hImageList);
    EXPECT_EQ(target.at(0)->source, "#7:0");
    EXPECT_EQ(colourAt(target.at(0)->picture, 1, 1), 0x0000ffU);
    EXPECT_EQ(list.ExtractIcon(2), nullptr);
}

TEST_F(ImageListTest, ABitmapOfAnIconIsThePictureAndTheCallers) {
    addStrip();
    const HICON icon = list.ExtractIcon(0);
    const HBITMAP picture = BitmapFromIconGdiPlus(icon);
    DestroyIcon(icon);
    EXPECT_EQ(toolkit().pictures().source(picture), "#7:0");
    EXPECT_EQ(toolkit().pictures().pixels(picture).rgba, known().at(0)->picture.rgba);
    EXPECT_EQ(BitmapFromIconGdiPlus(icon), nullptr);
    toolkit().pictures().release(picture);
}

TEST_F(ImageListTest, TheCountCutsOffOrAddsPicturesThatShowNothing) {
    addStrip();
    EXPECT_TRUE(list.SetImageCount(3));
    EXPECT_EQ(known().at(2)->picture.rgba, std::vector<std::uint8_t>(4, 0));
    EXPECT_TRUE(list.SetImageCount(1));
    EXPECT_EQ(list.GetImageCount(), 1);
}

TEST_F(ImageListTest, AListEndsWithItsObjectUnlessItWasGivenAway) {
    const std::size_t before = windows().gdi().imageListCount();
    HIMAGELIST given = nullptr;
    {
        CImageList kept;
        kept.Create(1, 1, 0, 0, 1);
        CImageList lent;
        lent.Create(1, 1, 0, 0, 1);
        given = lent.Detach();
    }
    EXPECT_EQ(windows().gdi().imageListCount(), before + 1);
    CImageList taker;
    EXPECT_TRUE(taker.Attach(given));
    EXPECT_FALSE(taker.Attach(nullptr));
    EXPECT_TRUE(taker.DeleteImageList());
    EXPECT_FALSE(taker.DeleteImageList());
    EXPECT_EQ(taker.SetBkColor(0), CLR_INVALID);
}

TEST_F(ImageListTest, TheColourBehindIsKept) {
    EXPECT_EQ(list.SetBkColor(0x123456), CLR_INVALID);
    EXPECT_EQ(list.SetBkColor(0), 0x123456U);
}

}  // namespace workbench
