#include "workbench/windows/background_painter.h"

#include "workbench/windows/window_system.h"

namespace workbench {

namespace {

/// Keeps the colour of what covers all of it.
class BackgroundContext final : public CDC {
public:
    explicit BackgroundContext(const CRect& clip) : m_clip(clip) {}

    CRect GetClipBox() const override { return m_clip; }
    CBrush* SelectObject(CBrush* brush) override { return std::exchange(m_brush, brush); }
    BOOL PatBlt(int x, int y, int width, int height, DWORD operation) override {
        if (m_brush == nullptr || operation != PATCOPY)
            return 0;
        if (CRect{x, y, x + width, y + height} == m_clip)
            m_colour = m_brush->colour();
        return 1;
    }
    // Nothing but a brush that covers all of it is taken for a background.
    void FillSolidRect(const CRect& /*rect*/, COLORREF /*colour*/) override {}
    BOOL GradientFill(const TRIVERTEX* /*vertices*/, UINT /*vertexCount*/,
                      const GRADIENT_RECT* /*rects*/, UINT /*rectCount*/, UINT /*mode*/) override {
        return 0;
    }
    BOOL TransparentBlt(int /*x*/, int /*y*/, int /*width*/, int /*height*/,
                        const CBitmap& /*source*/, COLORREF /*transparent*/) override {
        return 0;
    }
    CFont* SelectObject(CFont* font) override { return std::exchange(m_font, font); }
    COLORREF SetTextColor(COLORREF colour) override { return std::exchange(m_textColour, colour); }
    int SetBkMode(int mode) override { return std::exchange(m_backMode, mode); }
    int DrawText(const VxString& /*text*/, const CRect& /*rect*/, UINT /*format*/) override {
        return 0;
    }
    std::optional<COLORREF> colour() const { return m_colour; }

private:
    CRect m_clip;
    CBrush* m_brush = nullptr;  // not owned
    CFont* m_font = nullptr;    // not owned
    COLORREF m_textColour = 0;
    int m_backMode = 0;
    std::optional<COLORREF> m_colour;
};

}  // namespace

std::optional<COLORREF> paintBackground(WindowSystem& windows, HWND window) {
    BackgroundContext context(windows.clientRect(window));
    const HDC handle = windows.gdi().addContext(context);
    windows.send(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(handle), 0);
    windows.gdi().removeContext(handle);
    return context.colour();
}

}  // namespace workbench
