#include "workbench/windows/drawing_context.h"

#include "tests/workbench/windows/window_fixture.h"
#include "workbench/windows/picture_pixels.h"

namespace workbench {

namespace {

constexpr CRect kClip{0, 0, 100, 20};
const HBITMAP kKnown = reinterpret_cast<HBITMAP>(std::uintptr_t{7});

class DrawingContextTest : public WindowTest {
protected:
    DrawingContext context{kClip, windows().gdi(), [](HBITMAP bitmap) {
                               PngPicture picture;
                               picture.width = 1;
                               picture.height = 1;
                               picture.rgba = {255, 0, 255, 255};
                               return bitmap == kKnown ? std::optional(picture) : std::nullopt;
                           }};
};

}  // namespace

TEST_F(DrawingContextTest, FillsAreKeptInTheirOrder) {
    CBrush brush(0x112233);
    EXPECT_FALSE(context.PatBlt(0, 0, 5, 5, PATCOPY));
    EXPECT_EQ(context.SelectObject(&brush), nullptr);
    EXPECT_TRUE(context.PatBlt(1, 2, 3, 4, PATCOPY));
    EXPECT_FALSE(context.PatBlt(1, 2, 3, 4, 0));
    context.FillSolidRect(kClip, 0xffffff);
    ASSERT_EQ(context.steps().size(), 2U);
    EXPECT_EQ(std::get<FillStep>(context.steps()[0]), (FillStep{{1, 2, 4, 6}, 0x112233}));
    EXPECT_EQ(std::get<FillStep>(context.steps()[1]), (FillStep{kClip, 0xffffff}));
}

TEST_F(DrawingContextTest, AGradientGoesFromOneCornersColourToTheOthers) {
    const TRIVERTEX corners[] = {{0, 0, 0xffff, 0xffff, 0xffff, 0},
                                 {20, 10, 0xcc00, 0xcc00, 0x1200, 0}};
    const GRADIENT_RECT rect{0, 1};
    EXPECT_TRUE(context.GradientFill(corners, 2, &rect, 1, GRADIENT_FILL_RECT_H));
    ASSERT_EQ(context.steps().size(), 1U);
    EXPECT_EQ(std::get<GradientStep>(context.steps()[0]),
              (GradientStep{{0, 0, 20, 10}, 0xffffff, 0x12cccc}));
    const GRADIENT_RECT beyond{0, 2};
    EXPECT_FALSE(context.GradientFill(corners, 2, &beyond, 1, GRADIENT_FILL_RECT_H));
    EXPECT_FALSE(context.GradientFill(corners, 2, &rect, 1, 1));
    EXPECT_EQ(context.steps().size(), 1U);
}

TEST_F(DrawingContextTest, ABitmapIsDrawnWithoutItsTransparentColour) {
    CBitmap bitmap;
    EXPECT_FALSE(context.TransparentBlt(0, 0, 16, 16, bitmap, 0));
    bitmap.m_hBitmap = kKnown;
    EXPECT_FALSE(context.TransparentBlt(0, 0, 0, 16, bitmap, 0));
    EXPECT_TRUE(context.TransparentBlt(2, 3, 2, 1, bitmap, 0xff00ff));
    bitmap.m_hBitmap = nullptr;
    const auto& step = std::get<PictureStep>(context.steps().at(0));
    EXPECT_EQ(step.rect, (CRect{2, 3, 4, 4}));
    EXPECT_EQ(step.picture.rgba, (std::vector<std::uint8_t>{255, 0, 255, 0, 255, 0, 255, 0}));
}

TEST_F(DrawingContextTest, ATextHasTheColourAndFontOfItsTime) {
    CFont font;
    font.CreateFontIndirect({L"Sans", 14});
    EXPECT_EQ(context.SelectObject(&font), nullptr);
    EXPECT_EQ(context.SetTextColor(0x0000ff), 0U);
    EXPECT_EQ(context.SetBkMode(TRANSPARENT), TRANSPARENT);
    EXPECT_EQ(context.DrawText(L"text", kClip, DT_SINGLELINE), 14);
    EXPECT_EQ(context.SelectObject(static_cast<CFont*>(nullptr)), &font);
    EXPECT_EQ(context.DrawText(L"more", kClip, 0), 11);
    EXPECT_EQ(std::get<TextStep>(context.steps().at(0)),
              (TextStep{kClip, L"text", 0x0000ff, DT_SINGLELINE, font.GetSafeHandle()}));
}

}  // namespace workbench
