#include "workbench/toolkit/floating_frame.h"

#include <algorithm>

namespace workbench {

namespace {

/// Keeps a child as large as its parent's client area, borders left out.
class Filler final : public Widget {
public:
    Filler(WindowSystem& windows, CRect borders) : m_windows(windows), m_borders(borders) {}

    bool handle(Window& window, UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/,
                LRESULT& /*answer*/) override {
        if (message != WM_SIZE || window.children.empty())
            return false;
        const int width = window.rect.Width();
        const int height = window.rect.Height();
        const CRect inside{m_borders.left, m_borders.top,
                           std::max(m_borders.left, width - m_borders.right),
                           std::max(m_borders.top, height - m_borders.bottom)};
        m_windows.place(window.children.front(), inside, SWP_NOZORDER | SWP_NOACTIVATE);
        return false;
    }

private:
    WindowSystem& m_windows;
    CRect m_borders;  // the width of each side
};

}  // namespace

FloatingFrame::FloatingFrame(WindowSystem& windows, const CRect& rect) : m_windows(windows) {
    WindowCreation frame;
    frame.className = "FloatingFrame";
    frame.rect = rect;
    frame.widget = std::make_unique<Filler>(windows, CRect{kBorder, kCaption, kBorder, kBorder});
    windows.create(m_frame, std::move(frame));

    WindowCreation bar;
    bar.className = "CDockBar";
    bar.style = WS_CHILD | WS_VISIBLE;
    bar.rect = {kBorder, kCaption, std::max(kBorder, rect.Width() - kBorder),
                std::max(kCaption, rect.Height() - kBorder)};
    bar.parent = m_frame.m_hWnd;
    bar.widget = std::make_unique<Filler>(windows, CRect{});
    windows.create(m_dockBar, std::move(bar));
}

FloatingFrame::~FloatingFrame() {
    m_windows.destroy(m_frame.m_hWnd);
}

}  // namespace workbench
