#pragma once

#include "tests/hostile/attack.h"

#include <hostapi/qrui18/input_edit.h>
#include <hostapi/qrui18/tool_panel.h>

namespace hostile {

/// The module's control: a tool panel with an edit field and a timer. It reaches a point with each
/// message that it gets. Its object outlives its window, to the end of the module.
class HostileControl final : public CQrUiToolPanel {
public:
    /// Makes a control on a parent and answers its window; null if none came of it.
    static HWND make(CWnd& parent);
    /// The window that one of the living controls stands on; null for none.
    static CWnd* anyParent();
    /// Ends all controls; those that are on panels take their windows along.
    static void endAll();

    // CWnd:
    const MessageMap& GetMessageMap() const override;
    BOOL PreTranslateMessage(MSG* msg) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

private:
    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onCreate(WPARAM unused, LPARAM create);
    /// Reaches a point, then leaves the message to the toolkit.
    template <Point Reached>
    LRESULT pass(WPARAM wParam, LPARAM lParam);
    /// Reaches a point and answers 0.
    template <Point Reached>
    LRESULT hear(WPARAM wParam, LPARAM lParam);
    /// The same while a variable is written.
    template <Point Reached>
    LRESULT hearVariable(WPARAM wParam, LPARAM name);

    CQrUiInputEditCtrl m_field;
};

}  // namespace hostile
