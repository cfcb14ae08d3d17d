#pragma once

#include "controls/slider_panel_ctrl.h"

#include <hostapi/qrui18/input_edit.h>

class CVxDaControlMgr;

/// Base of the controls with a slider and an edit field in one row. Enter and Escape in the field are
/// sent to the control as `WM_DA_EDIT_ENTER` and `WM_DA_EDIT_ESCAPE` and go no further. An entry ends
/// when Enter is pressed and when the focus leaves the field.
class CVxDaSliderEditPanelCtrl : public CVxDaSliderPanelCtrl {
public:
    explicit CVxDaSliderEditPanelCtrl(CVxDaControlMgr* controlMgr);

    // CWnd:
    const MessageMap& GetMessageMap() const override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL PreTranslateMessage(MSG* msg) override;
    // CQrUiToolPanel:
    /// The toolkit's layout, after which the slider takes two thirds of what it and the edit field
    /// had together, and the field all that is left. Returns 1.
    BOOL UpdateLayout(BOOL invalidate) override;
    // CVxDaSliderPanelCtrl:
    BOOL CreateEditPart() override;

protected:
    static const MessageMap& GetThisMessageMap();

    /// Creates an edit field with the style of all fields in a row.
    BOOL createEdit(CQrUiInputEditCtrl& edit, UINT id);
    /// Sends Enter or Escape to this control if the key goes to a field. Whether it did.
    bool sendEditKey(const MSG& msg, CQrUiInputEditCtrl& edit);

    /// The edit field with a control ID; null for another's ID.
    virtual CQrUiInputEditCtrl* findField(UINT editId);
    /// The focus came to a field. Nothing here.
    virtual void fieldEntered(CQrUiInputEditCtrl& field);
    /// The focus left a field. Ends the entry.
    virtual void fieldLeft(CQrUiInputEditCtrl& field);
    /// Takes or refuses what a field holds.
    virtual void commitEdit(CQrUiInputEditCtrl& field) = 0;
    /// Gives up what a field holds.
    virtual void restoreEdit(CQrUiInputEditCtrl& field) = 0;

    ModuleWindow<CQrUiInputEditCtrl> m_edit;
    CVxDaControlMgr* m_pControlMgr;  // not owned

private:
    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onEditEnter(WPARAM editId, LPARAM edit);
    LRESULT onEditEscape(WPARAM editId, LPARAM edit);
};
