#pragma once

#include "workbench/toolkit/control_widget.h"
#include "workbench/toolkit/line_editor.h"

#include <optional>
#include <string>

namespace workbench {

class Toolkit;

/// An edit field of one line. A click gives it the focus; the focus coming and going is reported to
/// its parent.
class EditWidget final : public ControlWidget {
public:
    static constexpr int kHeight = 20;         ///< Pixels.
    static constexpr int kTextMargin = 3;      ///< Pixels left and right of the text.
    static constexpr int kCharacterWidth = 6;  ///< Pixels: each character has the same room.

    explicit EditWidget(Toolkit& toolkit) : m_toolkit(toolkit) {}

    /// The text with caret and selection, as they stand now.
    const LineEditor& editor(const Window& window);
    void selectAll(Window& window);
    /// How many characters of the text stand left of the field, so that its caret can be seen.
    std::size_t scrolled(const Window& window);
    /// The colour behind the text.
    COLORREF background() const { return m_background; }
    void setBackground(COLORREF colour) { m_background = colour; }

    // ControlWidget:
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;
    bool reportsFocus() const override { return true; }
    bool holdsTyping(const Window& window) const override { return m_typed == window.text; }
    int naturalHeight(const Window& window, int width) const override;

private:
    void select(Window& window, int first, int last);
    void press(Window& window, CPoint point);
    void character(Window& window, wchar_t character);
    bool key(Window& window, WPARAM key);
    void showText(Window& window);

    Toolkit& m_toolkit;
    LineEditor m_editor;
    std::optional<std::wstring> m_typed;  // the last text that the user made; nothing: none
    COLORREF m_background = 0xffffff;
};

}  // namespace workbench
