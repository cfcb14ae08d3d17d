#pragma once

#include "controls/accepted_text.h"
#include "controls/slider_edit_panel_ctrl2.h"

#include <optional>

/// Slider and two fields for the lens of the current viewport's perspective view, in millimetres and
/// as a field of view. It follows the view on idle ticks, and keeps the navigation tools' states.
class CVxDa3DNavZoomSliderCtrl final : public CVxDaSliderEditPanelCtrl2 {
public:
    explicit CVxDa3DNavZoomSliderCtrl(CVxDaControlMgr* controlMgr);

    // CWnd:
    const MessageMap& GetMessageMap() const override;
    // CQrUiToolPanel:
    void OnLButtonClicked(UINT flags, CPoint point) override;

private:
    // CVxDaSliderPanelCtrl:
    void sliderMoved(int position) override;
    // CVxDaSliderEditPanelCtrl:
    void fieldEntered(CQrUiInputEditCtrl& field) override;
    void fieldLeft(CQrUiInputEditCtrl& field) override;
    void commitEdit(CQrUiInputEditCtrl& field) override;
    void restoreEdit(CQrUiInputEditCtrl& field) override;

    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onCreate(WPARAM unused, LPARAM create);
    LRESULT onIdle(WPARAM unused, LPARAM unusedToo);
    LRESULT onDocumentOrView(WPARAM unused, LPARAM unusedToo);
    LRESULT onSysVarChanged(WPARAM success, LPARAM name);
    LRESULT onCommandEnded(WPARAM unused, LPARAM name);

    void setUpSlider();
    bool isLensField(const CQrUiInputEditCtrl& field) const { return &field == &m_edit; }

    void Refresh();
    void UpdateEnabledState();
    void UpdateFromView();
    void ShowLens(double lens);

    std::optional<double> ValidateEdit(CQrUiInputEditCtrl& field, const VxString& text);
    std::optional<double> lensOf(const CQrUiInputEditCtrl& field, double value) const;
    VxString rangeText(const CQrUiInputEditCtrl& field) const;

    AcceptedText m_accepted;
    bool m_idleRefresh = false;  // the idle tick may read the view and overwrite the fields
};
