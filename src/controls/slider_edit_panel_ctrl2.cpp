#include "controls/slider_edit_panel_ctrl2.h"

#include "controls/edit_messages.h"
#include "controls/row_items.h"

CVxDaSliderEditPanelCtrl2::CVxDaSliderEditPanelCtrl2(CVxDaControlMgr* controlMgr)
    : CVxDaSliderEditPanelCtrl(controlMgr) {}

BOOL CVxDaSliderEditPanelCtrl2::PreTranslateMessage(MSG* msg) {
    const ModuleCall call;
    if (sendEditKey(*msg, m_edit2))
        return 1;
    return CVxDaSliderEditPanelCtrl::PreTranslateMessage(msg);
}

BOOL CVxDaSliderEditPanelCtrl2::UpdateLayout(BOOL /*invalidate*/) {
    // Kept as it is: the argument is not looked at and the row is not shared out, because the row
    // break lets the toolkit flow slider and fields.
    return CQrUiToolPanel::UpdateLayout(0);  // NOLINT(bugprone-parent-virtual-call): see above
}

BOOL CVxDaSliderEditPanelCtrl2::CreateEditPart() {
    addRowBreakItem(this);
    if (!createEdit(m_edit, kFirstEditId))
        return 0;
    addControlItem(this, m_edit.m_hWnd);
    addSeparatorItem(this);
    if (!createEdit(m_edit2, kSecondEditId))
        return 0;
    addControlItem(this, m_edit2.m_hWnd);
    return 1;
}

CQrUiInputEditCtrl* CVxDaSliderEditPanelCtrl2::findField(UINT editId) {
    return editId == kSecondEditId ? &m_edit2 : CVxDaSliderEditPanelCtrl::findField(editId);
}
