#pragma once

#include "workbench/toolbar/drawing_watch.h"
#include "workbench/toolbar/toolbar_list.h"

#include <hostapi/window.h>

#include <vector>

namespace workbench {

class ComboWidget;
class Toolkit;
struct Window;

/// The host's toolbar controls, wherever modules have put them. Their lists show the drawing as it is:
/// whatever changes it, or brings another one to the front, brings them up to date. A list that is
/// open stays as its user sees it until it closes.
class ToolbarControls {
public:
    /// All of them must outlive it.
    ToolbarControls(Toolkit& toolkit, Editor& editor, MenuHost& menu);
    ~ToolbarControls();

    /// Makes the window of a control as a child of `parent`, with which its object ends; null for an
    /// unknown ID and without a parent's window.
    CWnd* make(CWnd* parent, const CRect& rect, UINT id);
    /// Does what a notification of a control asks for: takes a choice or a click into effect. False
    /// for another window.
    bool handle(HWND control, UINT id, UINT notification);
    /// Brings the lists up to date after a change that the drawing tells nobody of, such as that of
    /// the workspace.
    void refresh();

private:
    void refresh(Window& window, ComboWidget& combo);
    ComboWidget* comboOf(HWND control) const;

    Toolkit& m_toolkit;
    ToolbarScope m_scope;
    std::vector<HWND> m_lists;  // some may have ended
    DrawingWatch m_watch;
};

}  // namespace workbench
