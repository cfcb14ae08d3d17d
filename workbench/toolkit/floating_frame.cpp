#include "workbench/toolkit/floating_frame.h"

#include <algorithm>

namespace workbench {

namespace {

constexpr int kLeastHeight = 200;  // pixels of a frame that stands low on the screen

/// Keeps a child as large as its parent's client area, borders left out.
class Filler final : public Widget {
public:
    Filler(WindowSystem& windows, CRect borders, const CRect* room)
        : m_windows(windows),
          m_borders(borders),
          m_room(room) {}

    bool handle(Window& window, UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/,
                LRESULT& /*answer*/) override {
        if (message != WM_SIZE)
            return false;
        if (const CRect fitting = fitted(window.rect); fitting != window.rect) {
            m_windows.place(window.handle, fitting, SWP_NOZORDER | SWP_NOACTIVATE);
            return false;
        }
        if (window.children.empty())
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
    /// A height that ends at the room's lower edge, or the room's own if too little is left there.
    CRect fitted(CRect rect) const {
        if (m_room == nullptr || m_room->Height() <= 0 || rect.bottom <= m_room->bottom)
            return rect;
        const int height = rect.Height();
        rect.bottom = m_room->bottom;
        rect.top = std::min(rect.top, std::max(m_room->top, rect.bottom - kLeastHeight));
        rect.top = std::max(rect.top, rect.bottom - height);
        return rect;
    }

    WindowSystem& m_windows;
    CRect m_borders;      // the width of each side
    const CRect* m_room;  // null: no limit
};

}  // namespace

FloatingFrame::FloatingFrame(WindowSystem& windows, const CRect& rect, const CRect& room)
    : m_windows(windows) {
    WindowCreation frame;
    frame.className = "FloatingFrame";
    frame.rect = rect;
    frame.widget =
        std::make_unique<Filler>(windows, CRect{kBorder, kCaption, kBorder, kBorder}, &room);
    windows.create(m_frame, std::move(frame));

    WindowCreation bar;
    bar.className = "CDockBar";
    bar.style = WS_CHILD | WS_VISIBLE;
    bar.rect = {kBorder, kCaption, std::max(kBorder, rect.Width() - kBorder),
                std::max(kCaption, rect.Height() - kBorder)};
    bar.parent = m_frame.m_hWnd;
    bar.widget = std::make_unique<Filler>(windows, CRect{}, nullptr);
    windows.create(m_dockBar, std::move(bar));
}

CRect FloatingFrame::reachable(const CRect& rect, const CRect& room) {
    if (room.Width() <= 0 || room.Height() <= 0)
        return rect;
    const int last = std::max(room.left, room.right - kSeen);
    const int left = std::clamp(rect.left, std::min(last, room.left + kSeen - rect.Width()), last);
    const int top = std::clamp(rect.top, room.top, std::max(room.top, room.bottom - kCaption));
    return {left, top, left + rect.Width(), top + rect.Height()};
}

FloatingFrame::~FloatingFrame() {
    m_windows.destroy(m_frame.m_hWnd);
}

}  // namespace workbench
