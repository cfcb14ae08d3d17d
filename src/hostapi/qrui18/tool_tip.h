#pragma once

#include <hostapi/export.h>
#include <hostapi/window.h>

constexpr UINT TTM_ACTIVATE = 1025;  ///< wParam: 1 lets the tooltip show, 0 hides it for good.
constexpr UINT TTM_RELAYEVENT =
    1031;  ///< lParam: `MSG*`, a message that may show or hide the text.

/// Shows a text while the mouse rests over one of its windows: once it was let show, and of the mouse
/// it knows what it is told.
class VXHOST CQrToolTipCtrl : public CWnd {
public:
    /// Creates the window. Returns 0 on failure.
    BOOL Create(CWnd* parent);
    /// Adds a window with its text, or replaces its text.
    void AddTool(CWnd* tool, const VxString& text);
};
