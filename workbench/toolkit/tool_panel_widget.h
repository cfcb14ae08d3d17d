#pragma once

#include "workbench/toolkit/control_widget.h"
#include "workbench/toolkit/row_layout.h"

#include <hostapi/qrui18.h>

namespace workbench {

class Toolkit;
class WindowSystem;

/// A tool panel: lays its items out in rows and turns the mouse's gestures on them into clicks. One
/// that stands in a row of another tool panel is a custom control.
class ToolPanelWidget final : public ControlWidget {
public:
    ToolPanelWidget(Toolkit& toolkit, UINT toolkitStyle)
        : m_toolkit(toolkit),
          m_toolkitStyle(toolkitStyle) {}

    /// Places the items and the windows of controls in rows of the window's width. A panel's own
    /// tool panel takes the height of its rows.
    void layout(Window& window);

    // ControlWidget:
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;
    std::string describe(const Window& window) const override;
    int naturalHeight(const Window& window, int width) const override;
    std::wstring tipAt(const Window& window, CPoint point) const override;

private:
    WindowSystem& windows() const;
    RowLayout rows(const CQrUiToolPanel& panel, int width) const;
    int indentOf(const CQrUiToolPanel& panel) const;
    void resize(const Window& window);
    void passOn(const Window& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer);
    void press(const Window& window, CPoint point);
    void release(Window& window, UINT flags, CPoint point);
    void clickIcon(const Window& window, UINT flags, CPoint point);
    void click(const Window& window, CQrUiToolPanelItem& item, CPoint point);
    void changeTheme(Window& window, WPARAM wParam, LPARAM lParam);

    Toolkit& m_toolkit;
    const UINT m_toolkitStyle;
    const CQrUiToolPanelItem* m_pressed = nullptr;  // only compared: the item may have ended
    HWND m_focusBefore = nullptr;                   // when the button went down
    bool m_isPressed = false;
};

}  // namespace workbench
