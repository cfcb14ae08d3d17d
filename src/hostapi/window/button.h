#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>
#include <hostapi/window/gdi.h>
#include <hostapi/window/wnd.h>

/// What there is to draw of a control that draws itself.
struct DRAWITEMSTRUCT {
    HWND hwndItem;
    HDC hDC;
    CRect rcItem;  ///< The client area.
};

/// A button. A click tells the parent (`BN_CLICKED`).
class VXHOST CButton : public CWnd {
public:
    /// Creates the window. Returns 0 on failure.
    BOOL Create(const wchar_t* text, DWORD style, const CRect& rect, CWnd* parent, UINT id);
    /// Draws the button, if it has `BS_OWNERDRAW`; by itself nothing.
    virtual void DrawItem(const DRAWITEMSTRUCT* item);
};
