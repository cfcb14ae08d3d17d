#pragma once

#include "controls/panel_group_ctrl.h"

/// Lets one of the host's own toolbar controls stand in a panel, with an icon for some. A host that
/// gives no control leaves the row empty.
class CVxDaToolbarGroupCtrl final : public CVxDaPanelGroupCtrl {
public:
    /// `name` is the control's name in the table of custom controls.
    explicit CVxDaToolbarGroupCtrl(const wchar_t* name) : m_name(name) {}

    // CWnd:
    const MessageMap& GetMessageMap() const override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onCreate(WPARAM unused, LPARAM create);
    LRESULT onKeepFocus(WPARAM unused, LPARAM unusedToo);
    LRESULT onHasIcon(WPARAM unused, LPARAM unusedToo);

    bool handleControlCommand(WPARAM wParam, LPARAM lParam);
    void addIcon(const wchar_t* id, const wchar_t* imageKey);

    VxString m_name;
    CWnd* m_pControl = nullptr;  // the host's; its window ends with this one
    bool m_bDroppedDown = false;
    bool m_bHasIcon = false;
};
