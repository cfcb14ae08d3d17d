#pragma once

#include "controls/panel_group_ctrl.h"
#include "nav3d/view_entries.h"

#include <hostapi/qrui18/combo.h>

class CTool;
class CVxDaControlMgr;

/// List of the named and the preset views, with a button that steps back through the viewport's
/// earlier views. It shows which named view the viewport shows, and the current-view entry once the
/// view has moved away from it.
class CVxDa3DNavViewComboCtrl final : public CVxDaPanelGroupCtrl {
public:
    explicit CVxDa3DNavViewComboCtrl(CVxDaControlMgr* controlMgr);

    // CWnd:
    const MessageMap& GetMessageMap() const override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    // CQrUiToolPanel:
    void OnLButtonClicked(UINT flags, CPoint point) override;

private:
    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onCreate(WPARAM unused, LPARAM create);
    LRESULT onEraseBackground(WPARAM context, LPARAM unused);
    LRESULT onDocument(WPARAM unused, LPARAM document);
    LRESULT onSysVarChanged(WPARAM success, LPARAM name);
    LRESULT onCommandOver(WPARAM unused, LPARAM name);
    LRESULT onViewChanged(WPARAM unused, LPARAM unusedToo);
    LRESULT onListDroppedQuery(WPARAM unused, LPARAM unusedToo);

    BOOL createCombo(const CREATESTRUCT& creation);
    void RebuildList();
    void rebuildIfVisible();
    void fillList(bool withCurrent);
    void updateBackButton();

    ViewComboItem* entryAt(int index) const;
    ViewComboItem* selectedEntry() const;
    bool selectView(VxDbObjectId viewId);
    bool selectCode(int code);

    void onListOpens();
    void onChosen();
    void restoreByTool(CTool* tool, const ViewComboItem& entry);
    void sendCommandOf(const ViewComboItem& entry);

    ModuleWindow<CQrUiComboCtrl> m_combo;
    bool m_viewCommandSent = false;  // a restore from this list is under way
    bool m_refreshPending = false;   // the view changed during a command
    bool m_listDropped = false;
};
