#pragma once

#include <hostapi/qrui18/prog_slider.h>
#include <hostapi/qrui18/tool_panel.h>

/// Slider for LTSCALE, the scale of linetypes, from 0.1 to 10 in steps of 0.1.
///
/// A control of a foreign module is an ordinary tool panel: the dashboard wraps its window in an
/// item and sends it the same messages as its own controls. So the thumb writes the variable, and
/// the host's event, not the gesture, corrects what is shown.
class ScaleControl final : public CQrUiToolPanel {
public:
    // CWnd:
    const MessageMap& GetMessageMap() const override;

private:
    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onCreate(WPARAM unused, LPARAM create);
    LRESULT onSliderMoved(WPARAM position, LPARAM slider);
    LRESULT onDocumentBecameCurrent(WPARAM unused, LPARAM document);
    LRESULT onSysVarChanged(WPARAM success, LPARAM name);

    void setUpSlider();
    void showScale();

    CQrUiProgSliderCtrl m_slider;
};
