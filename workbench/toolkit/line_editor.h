#pragma once

#include <cstddef>
#include <string>

namespace workbench {

/// A line of text being edited: the text with a caret and a selection, which lies between caret and
/// anchor.
class LineEditor {
public:
    const std::wstring& text() const { return m_text; }
    std::size_t caret() const { return m_caret; }
    std::size_t anchor() const { return m_anchor; }

    /// Takes a text that was set from outside; caret and anchor move into it.
    void setText(std::wstring text);
    /// Replaces the selection by a character and stands behind it.
    void insert(wchar_t character);
    /// Removes the selection, or else the character before the caret.
    void backspace();
    /// Removes the selection, or else the character behind the caret.
    void erase();
    void selectAll();
    /// Moves the caret; the selection grows if `extend`, and ends otherwise.
    void moveTo(std::size_t place, bool extend);
    void moveLeft(bool extend);
    void moveRight(bool extend);

private:
    bool removeSelection();

    std::wstring m_text;
    std::size_t m_caret = 0;
    std::size_t m_anchor = 0;  // equal to the caret: nothing is selected
};

}  // namespace workbench
