#pragma once

#include "workbench/toolkit/control_widget.h"
#include "workbench/toolkit/row_layout.h"

#include <hostapi/qrui18.h>

namespace workbench {

class Toolkit;
class WindowSystem;

/// A tool panel: lays its items out in rows and turns the mouse's gestures on them into clicks. One
/// that stands in a row of another tool panel is a custom control.
///
/// With the keyboard, one of its tools is marked: arrow keys, Home and End mark another one, Enter
/// clicks it, and Down opens the menu of a flyout.
class ToolPanelWidget final : public ControlWidget {
public:
    ToolPanelWidget(Toolkit& toolkit, UINT toolkitStyle)
        : m_toolkit(toolkit),
          m_toolkitStyle(toolkitStyle) {}

    /// Places the items and the windows of controls in rows of the window's width. A panel's own
    /// tool panel takes the height of its rows.
    void layout(Window& window);
    /// The index of the tool that Enter would click; -1 if the panel has none, and while it hasn't the
    /// keyboard.
    int marked(const Window& window) const;
    /// Marks a tool by its index; it shows once the panel has the keyboard.
    void markTool(const Window& window, int index);

    // ControlWidget:
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;
    bool takesTab() const override { return m_hasTools; }
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
    bool key(Window& window, WPARAM key);
    void mark(const Window& window, int step);
    void clickMarked(Window& window, bool onArrow);
    void changeTheme(Window& window, WPARAM wParam, LPARAM lParam);

    Toolkit& m_toolkit;
    const UINT m_toolkitStyle;
    const CQrUiToolPanelItem* m_pressed = nullptr;  // only compared: the item may have ended
    HWND m_focusBefore = nullptr;                   // when the button went down
    bool m_isPressed = false;
    bool m_hasTools = false;  // a panel's own tool panel with something to click
    int m_marked = 0;         // index of an item; not a tool's after a change of the items
};

}  // namespace workbench
