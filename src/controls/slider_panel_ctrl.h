#pragma once

#include "controls/panel_group_ctrl.h"

#include <hostapi/qrui18/prog_slider.h>

class CQrUiToolPanelItem;

/// What the row of a control with a slider is made of.
struct SliderRowSetup {
    UINT sliderId;
    const wchar_t* itemId;    ///< Of the icon.
    const wchar_t* imageKey;  ///< Of the icon.
};

/// Base of the controls with a slider. The concrete control creates the row, and is told of the
/// slider's moves.
class CVxDaSliderPanelCtrl : public CVxDaPanelGroupCtrl {
public:
    // CWnd:
    const MessageMap& GetMessageMap() const override;

    /// Creates what stands behind the slider in the row. Nothing here; returns 0.
    virtual BOOL CreateEditPart();

protected:
    static const MessageMap& GetThisMessageMap();

    /// Does the toolkit's creation step and creates slider, icon and edit part. Returns the icon's
    /// item; null if there can be no control. A failed edit part is no failure.
    CQrUiToolPanelItem* createRow(const CREATESTRUCT* creation, const SliderRowSetup& setup);

    /// The slider was moved to a position.
    virtual void sliderMoved(int position) = 0;

    ModuleWindow<CQrUiProgSliderCtrl> m_slider;

private:
    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onSliderMoved(WPARAM position, LPARAM slider);
};
