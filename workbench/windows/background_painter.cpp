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
    std::optional<COLORREF> colour() const { return m_colour; }

private:
    CRect m_clip;
    CBrush* m_brush = nullptr;  // not owned
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
