#pragma once

#include "workbench/windows/window_system.h"

#include <hostapi/window/frame.h>

namespace workbench {

/// The small frame that a floating bar stands in: a top window with a caption and borders, inside
/// it a dock bar, inside that the bar.
class FloatingFrame {
public:
    static constexpr int kBorder = 4;    ///< Pixels at left, right and bottom.
    static constexpr int kCaption = 18;  ///< Pixels at the top.

    /// Makes the frame, hidden, on the screen.
    FloatingFrame(WindowSystem& windows, const CRect& rect);
    FloatingFrame(const FloatingFrame&) = delete;
    FloatingFrame& operator=(const FloatingFrame&) = delete;
    ~FloatingFrame();

    CFrameWnd& frame() { return m_frame; }
    CDockBar& dockBar() { return m_dockBar; }

private:
    WindowSystem& m_windows;
    CFrameWnd m_frame;
    CDockBar m_dockBar;
};

}  // namespace workbench
