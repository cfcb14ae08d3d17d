#pragma once

#include "controls/accepted_text.h"
#include "controls/ctrl_container.h"
#include "controls/panel_group_ctrl.h"

#include <hostapi/qrui18/tool_tip.h>
#include <hostapi/vxge18.h>

class CVxDaControlMgr;
struct CameraPointSetting;

/// Base of the two controls for a point of the current view: three fields for its coordinates, which
/// move it when one is entered.
class CVxDa3DNavCameraPointCtrl : public CVxDaPanelGroupCtrl {
public:
    // CWnd:
    const MessageMap& GetMessageMap() const override;
    BOOL PreTranslateMessage(MSG* msg) override;
    // CQrUiToolPanel:
    void OnLButtonClicked(UINT flags, CPoint point) override;

protected:
    explicit CVxDa3DNavCameraPointCtrl(const CameraPointSetting& setting);

private:
    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onCreate(WPARAM unused, LPARAM create);
    LRESULT onEraseBackground(WPARAM context, LPARAM unused);
    LRESULT onDocument(WPARAM unused, LPARAM document);
    LRESULT onSysVarChanged(WPARAM success, LPARAM name);
    LRESULT onViewChanged(WPARAM unused, LPARAM unusedToo);
    LRESULT onFieldLeft(WPARAM command, LPARAM field);
    LRESULT onFieldEntered(WPARAM command, LPARAM field);
    LRESULT onEditEnter(WPARAM editId, LPARAM edit);
    LRESULT onEditEscape(WPARAM editId, LPARAM edit);

    CWnd* findField(UINT id) const;
    CWnd* findCoordinateField(UINT id) const;
    void dressFields();
    void RefreshFromView();
    void CommitField(UINT id);
    void applyText(CWnd& field, UINT id, const VxString& text);
    void forbid(CWnd& field, UINT strReason);
    void ApplyPoint();

    const CameraPointSetting& m_setting;
    CVxDaCtrlContainer m_fields;
    bool m_applying = false;  // the view's change is this control's own
    AcceptedText m_accepted;
    VxGePoint3d m_point;  // last read or entered
    CQrToolTipCtrl m_toolTip;
};

/// The camera's place.
class CVxDa3DNavCameraEyePointCtrl final : public CVxDa3DNavCameraPointCtrl {
public:
    explicit CVxDa3DNavCameraEyePointCtrl(CVxDaControlMgr* controlMgr);
};

/// The point that the camera looks at.
class CVxDa3DNavCameraTargetPointCtrl final : public CVxDa3DNavCameraPointCtrl {
public:
    explicit CVxDa3DNavCameraTargetPointCtrl(CVxDaControlMgr* controlMgr);
};
