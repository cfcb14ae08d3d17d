#pragma once

#include <hostapi/export.h>
#include <hostapi/window.h>

/// An edit field of one line.
class VXHOST CQrUiInputEditCtrl : public CWnd {
public:
    /// Creates the window. Returns 0 on failure.
    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id, UINT toolkitStyle);
    /// The text shown while the mouse rests over the field.
    void SetToolTipText(const VxString& text);
    /// The colour behind the text while the field is neither disabled nor in error.
    void SetBkNorm(COLORREF colour);
};
