#include "workbench/windows/gdi_table.h"

#include "tests/workbench/windows/window_fixture.h"

namespace workbench {

namespace {

class GdiTableTest : public WindowTest {
protected:
    GdiTable& gdi() { return windows().gdi(); }

    const std::size_t hostFonts = gdi().fontCount();
};

}  // namespace

TEST_F(GdiTableTest, AFontIsWhatWasAskedForAndEndsWithItsObject) {
    {
        CFont font;
        ASSERT_TRUE(font.CreateFontIndirect({L"Sans", 11, 700, true}));
        const LOGFONT* const found = gdi().findFont(font.GetSafeHandle());
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(found->faceName, L"Sans");
        EXPECT_EQ(found->height, 11);
        EXPECT_EQ(found->weight, 700);
        EXPECT_TRUE(found->italic);
    }
    EXPECT_EQ(gdi().fontCount(), hostFonts);
}

TEST_F(GdiTableTest, ASecondFontEndsTheFirst) {
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect({}));
    const WPARAM first = font.GetSafeHandle();
    ASSERT_TRUE(font.CreateFontIndirect({}));
    EXPECT_EQ(gdi().findFont(first), nullptr);
    EXPECT_EQ(gdi().fontCount(), hostFonts + 1);
}

TEST_F(GdiTableTest, AFontThatFailsHasNoHandle) {
    CFont font;
    Workbench::current().faults().fail("CFont::CreateFontIndirect");
    EXPECT_FALSE(font.CreateFontIndirect({}));
    EXPECT_EQ(font.GetSafeHandle(), 0U);
}

TEST_F(GdiTableTest, AnIconIsGivenBackOnce) {
    PngPicture picture;
    picture.width = 16;
    const HICON icon = gdi().addIcon({picture, "#220"});
    ASSERT_NE(gdi().findIcon(icon), nullptr);
    EXPECT_EQ(gdi().findIcon(icon)->picture.width, 16U);
    EXPECT_EQ(gdi().findIcon(icon)->source, "#220");
    EXPECT_TRUE(DestroyIcon(icon));
    EXPECT_FALSE(DestroyIcon(icon));
    EXPECT_EQ(gdi().iconCount(), 0U);
}

}  // namespace workbench
