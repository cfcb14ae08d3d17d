#pragma once

#include <hostapi/export.h>
#include <hostapi/window.h>

/// A slider with tick marks. A gesture on it sends `WM_QRUI_POSITION` to its parent; setting its
/// position does not.
class VXHOST CQrUiProgSliderCtrl : public CWnd {
public:
    /// Creates the window. Returns 0 on failure.
    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id, UINT toolkitStyle);

    /// The lowest and the highest position, both inclusive. Moves the thumb into the range.
    void SetSliderRange(int lowest, int highest);
    /// How far an arrow key moves the thumb.
    void SetSliderLineSize(int positions);
    /// Adds a tick mark.
    void SetSliderTick(int position);
    /// Moves the thumb; told a position outside the range, it stands at the nearer end.
    void SetSliderPos(int position);
    int GetSliderPos() const;
    /// The bits of how the slider looks.
    UINT GetControlStyle() const;
    void SetControlStyle(UINT style);
    /// The text shown while the mouse rests over the slider.
    void SetToolTipText(const VxString& text);
    /// Shows that text now if the mouse is over the slider or drags it.
    void ShowToolTip();
};
