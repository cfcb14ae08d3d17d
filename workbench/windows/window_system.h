#pragma once

#include "workbench/core/clock.h"
#include "workbench/core/journal.h"
#include "workbench/windows/window.h"

#include <hostapi/window.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// What a window is made with.
struct WindowCreation {
    const char* className = "";
    DWORD style = 0;
    CRect rect;
    HWND parent = nullptr;
    int id = 0;
    std::wstring text;
    std::unique_ptr<Widget> widget;
};

/// The windows of the workbench: their tree, messages, focus and timers.
///
/// A handle holds a slot and a generation, so a dead window's handle never finds another window.
/// All changes of what a user would see are noted in the journal (kinds "control" and "message")
/// for windows that stand inside a named one, and told to the observer.
class WindowSystem {
public:
    WindowSystem(Clock& clock, Journal& journal);
    WindowSystem(const WindowSystem&) = delete;
    WindowSystem& operator=(const WindowSystem&) = delete;
    ~WindowSystem();

    // Life.

    /// Makes a window for an object and sends it `WM_CREATE`. False if the object has a window, the
    /// parent is stale, or the creation answered -1; the object has no window then.
    bool create(CWnd& object, WindowCreation creation);
    /// Ends a window: hides it, sends `WM_DESTROY` to it and its descendants, parents first, and
    /// clears their objects' handles. Timers, queued messages and the focus go with it. False for a
    /// stale handle.
    bool destroy(HWND window);
    /// The window of a handle; null for a stale one.
    Window* find(HWND window);
    const Window* find(HWND window) const;
    /// The widget of an object's window as a type; null without a window or for another type.
    template <class Type>
    Type* widgetOf(const CWnd* object) {
        Window* window = object == nullptr ? nullptr : find(object->m_hWnd);
        return window == nullptr ? nullptr : dynamic_cast<Type*>(window->widget.get());
    }
    /// The top windows, in order of creation.
    const std::vector<HWND>& topWindows() const { return m_topWindows; }

    // Messages.

    /// Sends a message through the object's `WindowProc` and returns the answer; 0 if stale.
    LRESULT send(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    /// The object's message table, then the widget, then the common handling: what
    /// `CWnd::WindowProc` does.
    LRESULT dispatch(CWnd& object, UINT message, WPARAM wParam, LPARAM lParam);
    /// Goes on with the message that the object's handler is handling, at the base class.
    LRESULT dispatchToBase(CWnd& object);
    /// Searches the object's table for a row of `WM_COMMAND`: what `CWnd::OnCommand` does.
    bool dispatchCommand(CWnd& object, WPARAM wParam, LPARAM lParam);
    /// Queues a message; false if the window is stale.
    bool post(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    /// An input message on its road from the queue: `PreTranslateMessage` from the focused (or
    /// given) window upwards, then, unless consumed, a send.
    void input(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    /// Sends the queued messages, those queued meanwhile too, until none is left.
    void runPosted();
    /// Advances the clock by milliseconds; posted messages and timers run at their times, in order.
    void advance(std::int64_t milliseconds);

    // State.

    HWND focus() const { return m_focus; }
    /// Moves the focus; null, a hidden or a disabled window takes it from all. False if refused.
    bool setFocus(HWND window);
    void setTimer(HWND window, UINT timer, UINT milliseconds);
    void killTimer(HWND window, UINT timer);
    void show(HWND window, bool visible);
    void enable(HWND window, bool enabled);
    void setText(HWND window, std::wstring text);
    /// Gives a window the name by which scripts and the journal know it.
    void setName(HWND window, std::string name);
    /// Moves or sizes as the `SWP_...` flags allow; sends `WM_SIZE` if the size changed and
    /// `WM_WINDOWPOSCHANGED` if anything did.
    void place(HWND window, CRect rect, UINT flags = 0);

    // Questions.

    /// The window and all its parents have the visible style.
    bool isOnScreen(HWND window) const;
    /// The window and all its parents are enabled.
    bool takesInput(HWND window) const;
    CRect screenRect(HWND window) const;
    /// The client area, origin (0, 0).
    CRect clientRect(HWND window) const;
    /// The first window with this name at or below `root` (null: anywhere), `skip` left out before.
    HWND findByName(std::string_view name, int skip = 0) const;
    /// Name of the nearest named window at or above, empty for none.
    std::string ownerName(HWND window) const;
    /// All descendants, depth first, in order of creation.
    std::vector<HWND> descendants(HWND window) const;
    /// The tree as text, one window a line: class, ID, name, text, rectangle, state, widget's words.
    std::string tree() const;

    /// Notes a visible change of a window in the journal (kind "control") under the name of the
    /// nearest named window and tells the observer; equal values are left out.
    void noteChange(HWND window, std::string_view field, Value before, Value after);
    /// Is told of each window that changed, was made or went. Null ends it.
    using Observer = std::function<void(HWND)>;
    void setObserver(Observer observer) { m_observer = std::move(observer); }
    /// Asks for a repaint of a window; the observer is told.
    void invalidate(HWND window);

private:
    struct Slot;
    struct Dispatch;
    struct Posted {
        HWND window;
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
    };

    Clock& m_clock;
    Journal& m_journal;
    std::vector<std::unique_ptr<Slot>> m_slots;
    std::vector<HWND> m_topWindows;
    std::vector<Dispatch*> m_dispatches;  // running handlers, innermost last; not owned
    std::deque<Posted> m_posted;
    HWND m_focus = nullptr;
    Observer m_observer;
};

}  // namespace workbench
