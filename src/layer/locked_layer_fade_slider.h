#pragma once

#include "controls/settle_timer.h"
#include "controls/slider_edit_panel_ctrl.h"

/// Button, slider and edit field for LAYLOCKFADECTL, the fading of locked layers in percent; the
/// variable's sign says whether locked layers fade. A drag writes once it has rested; the host's
/// event, not the gesture, corrects what is shown.
class CVxDaLockedLayerTransparencySliderCtrl final : public CVxDaSliderEditPanelCtrl {
public:
    explicit CVxDaLockedLayerTransparencySliderCtrl(CVxDaControlMgr* controlMgr);

    // CWnd:
    const MessageMap& GetMessageMap() const override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    // CQrUiToolPanel:
    void OnLButtonClicked(UINT flags, CPoint point) override;

private:
    // CVxDaSliderPanelCtrl:
    void sliderMoved(int position) override;
    // CVxDaSliderEditPanelCtrl:
    void commitEdit(CQrUiInputEditCtrl& field) override;
    void restoreEdit(CQrUiInputEditCtrl& field) override;

    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onCreate(WPARAM unused, LPARAM create);
    LRESULT onTimer(WPARAM timer, LPARAM unused);
    LRESULT onSysVarChanged(WPARAM success, LPARAM name);
    LRESULT onCommandStarted(WPARAM unused, LPARAM name);
    LRESULT onCommandOver(WPARAM unused, LPARAM name);

    void setUpSlider();
    int parseFade();
    int refuseEntry();
    void showFade();
    void showThumb();
    void updateButton();
    bool isFadingOn() const { return m_fade >= 0; }

    int m_fade = 50;  // percent; negative while fading is off, the size is kept
    SettleTimer m_settling;
};
