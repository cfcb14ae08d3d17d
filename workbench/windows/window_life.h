#pragma once

#include "workbench/windows/keyboard_focus.h"
#include "workbench/windows/message_dispatcher.h"
#include "workbench/windows/window_changes.h"
#include "workbench/windows/window_state.h"
#include "workbench/windows/window_timers.h"
#include "workbench/windows/window_tree.h"

#include <hostapi/window.h>

#include <memory>
#include <string>

namespace workbench {

/// What a window is made with.
struct WindowCreation {
    const char* className = "";
    DWORD style = 0;
    CRect rect;
    HWND parent = nullptr;
    HWND popupOf = nullptr;  ///< makes a popup: it has no parent, and goes when that window goes
    int id = 0;
    std::wstring text;
    std::string name;  ///< by which scripts and the journal know it from its first message on
    std::unique_ptr<Widget> widget;
};

/// Makes and ends windows. What others keep for a window goes with it.
class WindowLife {
public:
    /// The parts that a window has to do with.
    struct Parts {
        WindowTree& tree;
        WindowChanges& changes;
        MessageDispatcher& messages;
        KeyboardFocus& focus;
        WindowState& state;
        WindowTimers& timers;
    };

    explicit WindowLife(Parts parts) : m_parts(parts) {}
    WindowLife(const WindowLife&) = delete;
    WindowLife& operator=(const WindowLife&) = delete;

    /// Makes a window for an object and sends it `WM_CREATE`. False if the object has a window, the
    /// parent is stale or dying, or the creation answered -1; the object has no window then.
    bool create(CWnd& object, WindowCreation creation);
    /// Ends a window: hides it, sends `WM_DESTROY` to it and its descendants, parents first, and
    /// clears their objects' handles, children first. Timers, queued messages and the focus go with
    /// it, and popups before it. False for a stale handle and for a window that is on its way out.
    bool destroy(HWND window);
    /// A window object ends: its window goes with it, and the handlers of it that are running are
    /// not continued.
    void objectEnds(CWnd& object);
    /// Lets all windows go without a message, also to the observer: the code of their objects may
    /// be gone.
    void abandonAll();

private:
    bool canStandIn(HWND window) const;
    HWND add(CWnd& object, WindowCreation&& creation);
    void destroyPopupsOf(HWND window);
    void sendDestroy(HWND window);
    void remove(HWND window);

    Parts m_parts;
};

}  // namespace workbench
