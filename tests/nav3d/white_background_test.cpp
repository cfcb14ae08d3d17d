#include "nav3d/white_background.h"

#include "tests/palette/palette_fixture.h"
#include "workbench/windows/window_system.h"

#include <string>
#include <vector>

namespace {

/// Notes what is done with it.
class NotingContext final : public CDC {
public:
    explicit NotingContext(CBrush& brush) : m_brush(&brush) {}

    CRect GetClipBox() const override { return {3, 5, 43, 25}; }
    CBrush* SelectObject(CBrush* brush) override {
        notes.push_back("select " + std::to_string(brush->colour()));
        return std::exchange(m_brush, brush);
    }
    BOOL PatBlt(int x, int y, int width, int height, DWORD operation) override {
        notes.push_back("fill " + std::to_string(x) + ", " + std::to_string(y) + " " +
                        std::to_string(width) + "x" + std::to_string(height) + " by " +
                        std::to_string(operation) + " in " + std::to_string(m_brush->colour()));
        return 1;
    }
    void FillSolidRect(const CRect& /*rect*/, COLORREF /*colour*/) override {}
    BOOL GradientFill(const TRIVERTEX* /*vertices*/, UINT /*vertexCount*/,
                      const GRADIENT_RECT* /*rects*/, UINT /*rectCount*/, UINT /*mode*/) override {
        return 0;
    }
    BOOL TransparentBlt(int /*x*/, int /*y*/, int /*width*/, int /*height*/,
                        const CBitmap& /*source*/, COLORREF /*transparent*/) override {
        return 0;
    }
    CFont* SelectObject(CFont* /*font*/) override { return nullptr; }
    COLORREF SetTextColor(COLORREF /*colour*/) override { return 0; }
    int SetBkMode(int /*mode*/) override { return 0; }
    int DrawText(const VxString& /*text*/, const CRect& /*rect*/, UINT /*format*/) override {
        return 0;
    }
    const CBrush* brush() const { return m_brush; }
    std::vector<std::string> notes;

private:
    CBrush* m_brush;  // not owned
};

class WhiteBackgroundTest : public PaletteTest {};

TEST_F(WhiteBackgroundTest, ClipBoxIsFilledAndTheEarlierBrushSelectedAgain) {
    CBrush earlier(0x123456);
    NotingContext context(earlier);
    const HDC handle = bench().windows().gdi().addContext(context);
    fillWhite(handle);
    bench().windows().gdi().removeContext(handle);
    EXPECT_EQ(context.notes,
              (std::vector<std::string>{
                  "select 16777215", "fill 3, 5 40x20 by 15728673 in 16777215", "select 1193046"}));
    EXPECT_EQ(context.brush(), &earlier);
}

TEST_F(WhiteBackgroundTest, MissingContextIsPassedOver) {
    fillWhite(nullptr);
    EXPECT_EQ(bench().windows().gdi().findContext(nullptr), nullptr);
}

}  // namespace
