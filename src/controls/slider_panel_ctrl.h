#pragma once

#include "controls/panel_group_ctrl.h"

#include <hostapi/qrui18/prog_slider.h>

/// Base of the controls with a slider. The concrete control creates the slider's window.
class CVxDaSliderPanelCtrl : public CVxDaPanelGroupCtrl {
public:
    /// Creates what stands behind the slider in the row. Nothing here; returns 0.
    virtual BOOL CreateEditPart();

protected:
    ModuleWindow<CQrUiProgSliderCtrl> m_slider;
};
