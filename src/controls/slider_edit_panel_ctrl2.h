#pragma once

#include "controls/slider_edit_panel_ctrl.h"

/// Base of the controls with a slider in the first row and two edit fields in the second.
class CVxDaSliderEditPanelCtrl2 : public CVxDaSliderEditPanelCtrl {
public:
    explicit CVxDaSliderEditPanelCtrl2(CVxDaControlMgr* controlMgr);

    // CWnd:
    BOOL PreTranslateMessage(MSG* msg) override;
    // CQrUiToolPanel:
    BOOL UpdateLayout(BOOL invalidate) override;
    // CVxDaSliderPanelCtrl:
    BOOL CreateEditPart() override;

protected:
    // CVxDaSliderEditPanelCtrl:
    CQrUiInputEditCtrl* findField(UINT editId) override;

    ModuleWindow<CQrUiInputEditCtrl> m_edit2;
};
