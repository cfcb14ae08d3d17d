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
    static constexpr int kSeen = 40;     ///< Pixels of the caption that a user can take hold of.

    /// Makes the frame, hidden, on the screen. It never grows beyond the room, which must outlive it
    /// and may change; an empty one sets no limit.
    FloatingFrame(WindowSystem& windows, const CRect& rect, const CRect& room);
    FloatingFrame(const FloatingFrame&) = delete;
    FloatingFrame& operator=(const FloatingFrame&) = delete;
    ~FloatingFrame();

    /// The place nearest to a wanted one at which the caption can be reached in a room.
    static CRect reachable(const CRect& rect, const CRect& room);

    CFrameWnd& frame() { return m_frame; }
    CDockBar& dockBar() { return m_dockBar; }

private:
    WindowSystem& m_windows;
    CFrameWnd m_frame;
    CDockBar m_dockBar;
};

}  // namespace workbench
