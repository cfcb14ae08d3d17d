#pragma once

#include "workbench/windows/window.h"

#include <string>
#include <utility>

namespace workbench {

/// A window of the toolkit that can stand in a row of a tool panel.
class ControlWidget : public Widget {
public:
    /// The height in pixels that the window wants in a row when it is `width` wide.
    virtual int naturalHeight(const Window& window, int width) const;
    /// The text of the tooltip over a client point; empty for none.
    virtual std::wstring tipAt(const Window& window, CPoint point) const;

    /// Gives a window that has a font the one that a theme (the lParam of `WM_QRUI_THEME_CHANGED`)
    /// keeps for controls; a theme that keeps none leaves it without one.
    static void takeFontOf(Window& window, LPARAM theme);

    /// The window's own tooltip.
    const std::wstring& tip() const { return m_tip; }
    void setTip(std::wstring tip) {
        m_tip = std::move(tip);
        m_isTipRelayed = false;
    }
    /// Gives the window a text that a tooltip of its module shows once it is told of the mouse.
    void setRelayedTip(std::wstring tip) {
        m_tip = std::move(tip);
        m_isTipRelayed = true;
    }
    bool isTipRelayed() const { return m_isTipRelayed; }

private:
    std::wstring m_tip;
    bool m_isTipRelayed = false;
};

}  // namespace workbench
