#include "workbench/windows/keyboard_focus.h"

#include <utility>

namespace workbench {

bool KeyboardFocus::moveTo(HWND window) {
    if (window == m_window)
        return true;
    if (window != nullptr) {
        const Window* const found = m_tree.find(window);
        if (found == nullptr || found->dying || !m_tree.isOnScreen(window) ||
            !m_tree.takesInput(window))
            return false;
    }
    const HWND old = m_window;
    m_window = window;
    const std::uint64_t move = ++m_moves;
    m_changes.tell(old);
    m_changes.tell(window);
    // A window whose parent hasn't heard that it got the focus isn't said to have lost it.
    if (old != nullptr && old == m_reported) {
        m_reported = nullptr;
        report(old, EN_KILLFOCUS);
    }
    if (move == m_moves && m_tree.find(window) != nullptr) {
        m_reported = window;
        report(window, EN_SETFOCUS);
    }
    tellWindows(old, move);
    if (m_onMoved)
        m_onMoved();
    return m_window == window;
}

/// Tells the windows of a move, unless a handler has moved the focus on: they know of that then. One
/// that hasn't heard that it got the focus isn't said to have lost it.
void KeyboardFocus::tellWindows(HWND before, std::uint64_t move) {
    if (move != m_moves)
        return;
    const HWND left = std::exchange(m_told, nullptr);
    m_messages.send(left, WM_KILLFOCUS, reinterpret_cast<WPARAM>(m_window), 0);
    if (move != m_moves || m_tree.find(m_window) == nullptr)
        return;
    m_told = m_window;
    m_messages.send(m_window, WM_SETFOCUS, reinterpret_cast<WPARAM>(before), 0);
}

void KeyboardFocus::report(HWND window, UINT notification) {
    const Window* const found = m_tree.find(window);
    if (found == nullptr || found->widget == nullptr || !found->widget->reportsFocus())
        return;
    m_messages.send(found->parent, WM_COMMAND, MAKELONG(static_cast<UINT>(found->id), notification),
                    reinterpret_cast<LPARAM>(window));
}

void KeyboardFocus::leaveWithin(HWND root) {
    if (m_window != nullptr && m_tree.isWithin(m_window, root))
        moveTo(nullptr);
}

void KeyboardFocus::windowDisabled(HWND window) {
    const Window* const focus = m_tree.find(m_window);
    const bool isEntry =
        focus != nullptr && focus->widget != nullptr && focus->widget->holdsTyping(*focus);
    // Without typing there is no entry that its parent could take.
    if (!isEntry && focus != nullptr && m_tree.isWithin(m_window, window))
        m_reported = nullptr;
    leaveWithin(window);
}

void KeyboardFocus::windowEnded(HWND window) {
    if (m_window == window)
        m_window = nullptr;
    if (m_reported == window)
        m_reported = nullptr;
    if (m_told == window)
        m_told = nullptr;
}

}  // namespace workbench
