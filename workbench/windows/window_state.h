#pragma once

#include "workbench/windows/keyboard_focus.h"
#include "workbench/windows/message_dispatcher.h"
#include "workbench/windows/window_changes.h"
#include "workbench/windows/window_tree.h"

#include <hostapi/window.h>

#include <string>

namespace workbench {

/// Shows, enables, names and places windows. All of it ignores stale handles.
class WindowState {
public:
    WindowState(WindowTree& tree, WindowChanges& changes, MessageDispatcher& messages,
                KeyboardFocus& focus)
        : m_tree(tree),
          m_changes(changes),
          m_messages(messages),
          m_focus(focus) {}
    WindowState(const WindowState&) = delete;
    WindowState& operator=(const WindowState&) = delete;

    /// Shows or hides; a change sends `WM_WINDOWPOSCHANGED`, and hiding takes the focus away.
    void show(HWND window, bool visible);
    /// Enables or disables; disabling takes the focus away.
    void enable(HWND window, bool enabled);
    void setText(HWND window, std::wstring text);
    /// Gives a window the name by which scripts and the journal know it.
    void setName(HWND window, std::string name);
    /// Moves, sizes, shows or hides as the `SWP_...` flags say; sends `WM_SIZE` if the size changed
    /// and then `WM_WINDOWPOSCHANGED` if anything did. A negative width or height counts as 0.
    /// The place in the pile is kept.
    void place(HWND window, CRect rect, UINT flags = 0);

    /// Puts a window into the pile of its siblings, as `WindowTree::putBelow` does.
    void pile(HWND window, HWND below);

private:
    void setVisibleStyle(Window& window, bool visible);
    void sendPosChanged(HWND window, UINT flags);

    WindowTree& m_tree;
    WindowChanges& m_changes;
    MessageDispatcher& m_messages;
    KeyboardFocus& m_focus;
};

}  // namespace workbench
