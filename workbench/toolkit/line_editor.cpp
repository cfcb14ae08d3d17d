#include "workbench/toolkit/line_editor.h"

#include <algorithm>

namespace workbench {

void LineEditor::setText(std::wstring text) {
    m_text = std::move(text);
    m_caret = std::min(m_caret, m_text.size());
    m_anchor = std::min(m_anchor, m_text.size());
}

void LineEditor::insert(wchar_t character) {
    removeSelection();
    m_text.insert(m_caret, 1, character);
    moveTo(m_caret + 1, false);
}

void LineEditor::backspace() {
    if (removeSelection() || m_caret == 0)
        return;
    m_text.erase(m_caret - 1, 1);
    moveTo(m_caret - 1, false);
}

void LineEditor::erase() {
    if (!removeSelection() && m_caret < m_text.size())
        m_text.erase(m_caret, 1);
}

void LineEditor::selectAll() {
    m_anchor = 0;
    m_caret = m_text.size();
}

void LineEditor::moveTo(std::size_t place, bool extend) {
    m_caret = std::min(place, m_text.size());
    if (!extend)
        m_anchor = m_caret;
}

void LineEditor::moveLeft(bool extend) {
    moveTo(m_caret == 0 ? 0 : m_caret - 1, extend);
}

void LineEditor::moveRight(bool extend) {
    moveTo(m_caret + 1, extend);
}

bool LineEditor::removeSelection() {
    if (m_caret == m_anchor)
        return false;
    const std::size_t first = std::min(m_caret, m_anchor);
    m_text.erase(first, std::max(m_caret, m_anchor) - first);
    moveTo(first, false);
    return true;
}

}  // namespace workbench
