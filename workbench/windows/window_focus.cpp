#include "workbench/windows/window_system.h"

namespace workbench {

bool WindowSystem::setFocus(HWND window) {
    if (window == m_focus)
        return true;
    if (window != nullptr) {
        const Window* const found = find(window);
        if (found == nullptr || found->dying || !isOnScreen(window) || !takesInput(window))
            return false;
    }
    const HWND old = m_focus;
    m_focus = window;
    const std::uint64_t move = ++m_focusMoves;
    tellObserver(old);
    tellObserver(window);
    // A window whose parent hasn't heard that it got the focus isn't said to have lost it.
    if (old != nullptr && old == m_reportedFocus) {
        m_reportedFocus = nullptr;
        reportFocus(old, EN_KILLFOCUS);
    }
    if (move == m_focusMoves && find(window) != nullptr) {
        m_reportedFocus = window;
        reportFocus(window, EN_SETFOCUS);
    }
    return m_focus == window;
}

void WindowSystem::reportFocus(HWND window, UINT notification) {
    const Window* const found = find(window);
    if (found == nullptr || found->widget == nullptr || !found->widget->reportsFocus())
        return;
    send(found->parent, WM_COMMAND, MAKELONG(static_cast<UINT>(found->id), notification),
         reinterpret_cast<LPARAM>(window));
}

void WindowSystem::dropFocusWithin(HWND root) {
    if (m_focus != nullptr && isWithin(m_focus, root))
        setFocus(nullptr);
}

}  // namespace workbench
