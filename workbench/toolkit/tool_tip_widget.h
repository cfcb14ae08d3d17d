#pragma once

#include "workbench/toolkit/tool_tips.h"
#include "workbench/windows/window.h"

#include <hostapi/window.h>

#include <string>
#include <vector>

namespace workbench {

/// A tooltip that a module makes for some windows of its own: their texts are shown while it is
/// active, and as far as it is told of the mouse. Not active until it is told so.
class ToolTipWidget final : public Widget {
public:
    ToolTipWidget(WindowSystem& windows, ToolTips& tips) : m_windows(windows), m_tips(tips) {}

    /// Has the tooltip show a text for a window of the toolkit, in place of the one before. Nothing
    /// happens for any other window.
    void addTool(const CWnd* tool, std::wstring text);

    // Widget:
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;

private:
    void activate(bool active);
    void relay(const MSG& message);
    bool isTool(HWND window) const;
    /// Ends the text of one of its tools, on show or about to be.
    void hideOwn();

    WindowSystem& m_windows;
    ToolTips& m_tips;
    std::vector<HWND> m_tools;
    bool m_isActive = false;
};

}  // namespace workbench
