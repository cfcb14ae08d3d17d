#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>
#include <hostapi/window/wnd.h>

/// A bar that a frame can hold at its edges.
class VXHOST CControlBar : public CWnd {
public:
    /// The frame that the bar is docked in, or the small frame that it floats in; null for none.
    CFrameWnd* GetDockingFrame() const;
};

/// An edge of a frame, or the inside of a floating frame, that bars dock in.
class VXHOST CDockBar : public CControlBar {};

/// A frame window.
class VXHOST CFrameWnd : public CWnd {
public:
    /// Shows (1) or hides (0) a bar of this frame and lays the frame out, at once unless `delay`.
    void ShowControlBar(CControlBar* bar, BOOL show, BOOL delay);
};

/// The main window of the thread, null for none.
CWnd* AfxGetMainWnd();
