#include "workbench/windows/window_state.h"

#include <algorithm>
#include <utility>

namespace workbench {

void WindowState::show(HWND window, bool visible) {
    Window* const found = m_tree.find(window);
    if (found == nullptr || found->hasVisibleStyle() == visible)
        return;
    setVisibleStyle(*found, visible);
    sendPosChanged(window, SWP_NOSIZE | SWP_NOMOVE | (visible ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
}

void WindowState::setVisibleStyle(Window& window, bool visible) {
    window.style = visible ? window.style | WS_VISIBLE : window.style & ~WS_VISIBLE;
    m_changes.note(window.handle, "visible", !visible, visible);
}

void WindowState::sendPosChanged(HWND window, UINT flags) {
    const CRect rect = m_tree.find(window)->rect;
    const WINDOWPOS record{window,       rect.left,     rect.top,
                           rect.Width(), rect.Height(), flags | SWP_NOZORDER | SWP_NOACTIVATE};
    m_messages.send(window, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&record));
    const Window* const still = m_tree.find(window);
    if (still != nullptr && !still->hasVisibleStyle())
        m_focus.leaveWithin(window);
}

void WindowState::enable(HWND window, bool enabled) {
    Window* const found = m_tree.find(window);
    if (found == nullptr || found->enabled == enabled)
        return;
    found->enabled = enabled;
    m_changes.note(window, "enabled", !enabled, enabled);
    if (!enabled)
        m_focus.windowDisabled(window);
}

void WindowState::setText(HWND window, std::wstring text) {
    Window* const found = m_tree.find(window);
    if (found == nullptr || found->text == text)
        return;
    std::swap(found->text, text);
    m_changes.noteText(window, text, found->text);
}

void WindowState::setName(HWND window, std::string name) {
    if (Window* const found = m_tree.find(window))
        found->name = std::move(name);
}

void WindowState::pile(HWND window, HWND below) {
    if (m_tree.putBelow(window, below))
        m_changes.tell(window);
}

void WindowState::place(HWND window, CRect rect, UINT flags) {
    Window* const found = m_tree.find(window);
    if (found == nullptr)
        return;
    const CRect old = found->rect;
    CSize size{std::max(0, rect.Width()), std::max(0, rect.Height())};
    CPoint corner{rect.left, rect.top};
    if ((flags & SWP_NOSIZE) != 0)
        size = {old.Width(), old.Height()};
    if ((flags & SWP_NOMOVE) != 0)
        corner = {old.left, old.top};
    found->rect = {corner.x, corner.y, corner.x + size.cx, corner.y + size.cy};

    UINT changes = 0;
    const bool isSized = size != CSize{old.Width(), old.Height()};
    const bool isMoved = corner != CPoint{old.left, old.top};
    changes |= isSized ? 0 : SWP_NOSIZE;
    changes |= isMoved ? 0 : SWP_NOMOVE;
    const UINT shownOrHidden = flags & (found->hasVisibleStyle() ? SWP_HIDEWINDOW : SWP_SHOWWINDOW);
    if (shownOrHidden != 0)
        setVisibleStyle(*found, shownOrHidden == SWP_SHOWWINDOW);
    if (!isSized && !isMoved && shownOrHidden == 0)
        return;
    m_changes.tell(window);
    if (isSized)
        m_messages.send(
            window, WM_SIZE, 0,
            static_cast<LPARAM>(MAKELONG(static_cast<UINT>(size.cx), static_cast<UINT>(size.cy))));
    if (m_tree.find(window) != nullptr)
        sendPosChanged(window, changes | shownOrHidden);
}

}  // namespace workbench
