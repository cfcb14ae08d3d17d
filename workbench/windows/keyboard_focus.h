#pragma once

#include "workbench/windows/message_dispatcher.h"
#include "workbench/windows/window_changes.h"
#include "workbench/windows/window_tree.h"

#include <hostapi/window.h>

#include <cstdint>
#include <functional>
#include <utility>

namespace workbench {

/// The window that the keys go to. When it comes and goes, the parents of windows that report it are
/// told (`EN_SETFOCUS`, `EN_KILLFOCUS`), and then the windows (`WM_SETFOCUS`, `WM_KILLFOCUS`).
class KeyboardFocus {
public:
    KeyboardFocus(const WindowTree& tree, WindowChanges& changes, MessageDispatcher& messages)
        : m_tree(tree),
          m_changes(changes),
          m_messages(messages) {}
    KeyboardFocus(const KeyboardFocus&) = delete;
    KeyboardFocus& operator=(const KeyboardFocus&) = delete;

    /// The window with the focus; null for none.
    HWND window() const { return m_window; }
    /// Moves the focus; null takes it from all. Once it has moved the parents are told, that of the old
    /// window first, then the windows in the same order. False, and nothing happens, for a window that is stale, dying, not on
    /// screen or disabled.
    bool moveTo(HWND window);
    /// Told whenever the focus has moved and all others know. Null ends it.
    void setOnMoved(std::function<void()> told) { m_onMoved = std::move(told); }
    /// Takes the focus from a window and all below it.
    void leaveWithin(HWND root);
    /// A window was disabled, and it and all below it lose the focus. The parent of a field is told
    /// only if the field holds what its user typed: that is an entry, all else is none.
    void windowDisabled(HWND window);
    /// A window is gone: nobody is told.
    void windowEnded(HWND window);

private:
    void report(HWND window, UINT notification);
    void tellWindows(HWND before, std::uint64_t move);

    const WindowTree& m_tree;
    WindowChanges& m_changes;
    MessageDispatcher& m_messages;
    HWND m_window = nullptr;
    HWND m_reported = nullptr;  // whose parent got EN_SETFOCUS and not yet EN_KILLFOCUS
    HWND m_told = nullptr;      // that got WM_SETFOCUS and not yet WM_KILLFOCUS
    std::function<void()> m_onMoved;
    std::uint64_t m_moves = 0;  // tells a handler's own move of the focus
};

}  // namespace workbench
