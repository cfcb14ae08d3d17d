#pragma once

#include "controls/accepted_text.h"
#include "controls/slider_edit_panel_ctrl.h"

struct StepSetting;
class VxDbDatabase;

/// Base of the two sliders for the steps of the navigation tools: a slider and an edit field for one
/// variable of the drawing. A drag writes at each step.
class CVxDa3DNavStepSliderCtrl : public CVxDaSliderEditPanelCtrl {
public:
    // CWnd:
    const MessageMap& GetMessageMap() const override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    // CQrUiToolPanel:
    void OnLButtonClicked(UINT flags, CPoint point) override;

protected:
    CVxDa3DNavStepSliderCtrl(CVxDaControlMgr* controlMgr, const StepSetting& setting);

private:
    // CVxDaSliderPanelCtrl:
    void sliderMoved(int position) override;
    // CVxDaSliderEditPanelCtrl:
    void fieldEntered(CQrUiInputEditCtrl& field) override;
    void commitEdit(CQrUiInputEditCtrl& field) override;
    void restoreEdit(CQrUiInputEditCtrl& field) override;

    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onCreate(WPARAM unused, LPARAM create);
    LRESULT onDocument(WPARAM unused, LPARAM document);
    LRESULT onSysVarChanged(WPARAM success, LPARAM name);

    void RefreshFromDatabase(const VxDbDatabase* database);
    void WriteVariable(double value);
    VxString labelled(const VxString& valueText) const;

    const StepSetting& m_setting;
    bool m_settingVar = false;  // the variable's change is this control's own
    AcceptedText m_accepted;
};

/// Length of a step, STEPSIZE.
class CVxDa3DNavStepSizeSliderCtrl final : public CVxDa3DNavStepSliderCtrl {
public:
    explicit CVxDa3DNavStepSizeSliderCtrl(CVxDaControlMgr* controlMgr);
};

/// Steps a second, STEPSPERSEC.
class CVxDa3DNavStepsPerSecSliderCtrl final : public CVxDa3DNavStepSliderCtrl {
public:
    explicit CVxDa3DNavStepsPerSecSliderCtrl(CVxDaControlMgr* controlMgr);
};
