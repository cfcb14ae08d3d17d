#pragma once

#include "controls/slider_panel_ctrl.h"

#include <hostapi/qrui18/input_edit.h>

class CVxDaControlMgr;

/// Base of the controls with a slider and an edit field in one row. Enter and Escape in the field
/// reach the concrete control as `WM_DA_EDIT_ENTER` and `WM_DA_EDIT_ESCAPE` and go no further.
class CVxDaSliderEditPanelCtrl : public CVxDaSliderPanelCtrl {
public:
    explicit CVxDaSliderEditPanelCtrl(CVxDaControlMgr* controlMgr);

    // CWnd:
    BOOL PreTranslateMessage(MSG* msg) override;
    // CQrUiToolPanel:
    /// The toolkit's layout, after which the slider takes two thirds of what it and the edit field
    /// had together, and the field all that is left. Returns 1.
    BOOL UpdateLayout(BOOL invalidate) override;
    // CVxDaSliderPanelCtrl:
    BOOL CreateEditPart() override;

protected:
    /// Creates an edit field with the style of all fields in a row.
    BOOL createEdit(CQrUiInputEditCtrl& edit, UINT id);
    /// Sends Enter or Escape to this control if the key goes to a field. Whether it did.
    bool sendEditKey(const MSG& msg, CQrUiInputEditCtrl& edit);

    ModuleWindow<CQrUiInputEditCtrl> m_edit;
    CVxDaControlMgr* m_pControlMgr;  // not owned
};
