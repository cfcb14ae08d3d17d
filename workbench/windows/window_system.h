#pragma once

#include "workbench/core/clock.h"
#include "workbench/core/journal.h"
#include "workbench/windows/gdi_table.h"
#include "workbench/windows/handle_table.h"
#include "workbench/windows/menu_table.h"
#include "workbench/windows/window.h"

#include <hostapi/window.h>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <set>
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
/// All changes of what a user would see are noted in the journal (kinds "control" and "message")
/// for windows that stand inside a named one, and told to the observer.
class WindowSystem {
public:
    WindowSystem(Clock& clock, Journal& journal);
    WindowSystem(const WindowSystem&) = delete;
    WindowSystem& operator=(const WindowSystem&) = delete;
    /// Ends as `abandonAll` does.
    ~WindowSystem();

    // Life.

    /// Makes a window for an object and sends it `WM_CREATE`. False if the object has a window, the
    /// parent is stale or dying, or the creation answered -1; the object has no window then.
    bool create(CWnd& object, WindowCreation creation);
    /// Ends a window: hides it, sends `WM_DESTROY` to it and its descendants, parents first, and
    /// clears their objects' handles, children first. Timers, queued messages and the focus go with
    /// it. False for a stale handle and for a window that is on its way out.
    bool destroy(HWND window);
    /// A window object ends: its window goes with it, and the handlers of it that are running are
    /// not continued.
    void objectEnds(CWnd& object);
    /// Lets all windows go without a message: the code of their objects may be gone.
    void abandonAll();
    /// The window of a handle; null for a stale one.
    Window* find(HWND window) { return m_windows.find(window); }
    const Window* find(HWND window) const { return m_windows.find(window); }
    /// The widget of an object's window as a type; null without a window or for another type.
    template <class Type>
    Type* widgetOf(const CWnd* object) {
        Window* window = object == nullptr ? nullptr : find(object->m_hWnd);
        return window == nullptr ? nullptr : dynamic_cast<Type*>(window->widget.get());
    }
    /// The top windows, in order of creation.
    const std::vector<HWND>& topWindows() const { return m_topWindows; }
    /// How many windows live.
    std::size_t count() const { return m_windows.count(); }

    // Messages.

    /// Sends a message through the object's `WindowProc` and returns the answer; 0 if stale.
    /// Allocates nothing while the journal doesn't record.
    LRESULT send(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    /// What `CWnd::WindowProc` does: the object's message table, then the widget, then the common
    /// handling. `WM_COMMAND` goes to the object's `OnCommand` in place of the table and, unless
    /// that answers non-zero, on to the widget.
    LRESULT dispatch(CWnd& object, UINT message, WPARAM wParam, LPARAM lParam);
    /// What `CWnd::Default` does: goes on with the message that the object's innermost running
    /// handler is handling, behind the table in which that handler stands.
    LRESULT dispatchToBase(CWnd& object);
    /// What `CWnd::OnCommand` does: runs the handler of a command of a menu or key (a `wParam`
    /// without a control in `lParam`), if the object's table has one.
    bool dispatchCommand(CWnd& object, WPARAM wParam, LPARAM lParam);
    /// Queues a message; false if the window is stale.
    bool post(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    /// An input message on its road from the queue: `PreTranslateMessage` from the window (null: the
    /// focused one) upwards, then, unless consumed, a send.
    void input(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    /// Sends the queued messages, those queued meanwhile too, until none is left. Throws
    /// std::runtime_error if that takes more than `kMostPostedMessages`.
    void runPosted();
    /// Whether messages are queued.
    bool hasPosted() const { return !m_posted.empty(); }
    /// Advances the clock by milliseconds; posted messages and timers run at their times, in order.
    void advance(std::int64_t milliseconds);

    /// When the next timer fires, on the clock; nothing while none runs.
    std::optional<std::int64_t> nextTimerDue();

    /// More messages than this in one run mean that a window answers its own message without end.
    static constexpr int kMostPostedMessages = 100000;

    // State.

    HWND focus() const { return m_focus; }
    /// The keys that the user holds down.
    bool isHeld(int key) const { return m_held.contains(key); }
    void hold(int key, bool down);
    /// Moves the focus; null takes it from all. The parents of windows that report it are told once
    /// it has moved, that of the old window first. False, and nothing happens, for a window that is
    /// stale, dying, not on screen or disabled.
    bool setFocus(HWND window);
    /// Starts, or starts again, a timer; a period of 0 counts as 1 millisecond.
    void setTimer(HWND window, UINT timer, UINT milliseconds);
    void killTimer(HWND window, UINT timer);
    /// Shows or hides; a change sends `WM_WINDOWPOSCHANGED`, and hiding takes the focus away.
    void show(HWND window, bool visible);
    /// Enables or disables; disabling takes the focus away.
    void enable(HWND window, bool enabled);
    void setText(HWND window, std::wstring text);
    /// Gives a window the name by which scripts and the journal know it.
    void setName(HWND window, std::string name);
    /// Moves, sizes, shows or hides as the `SWP_...` flags say; sends `WM_SIZE` if the size changed
    /// and then `WM_WINDOWPOSCHANGED` if anything did. A negative width or height counts as 0.
    void place(HWND window, CRect rect, UINT flags = 0);

    // Questions.

    /// The window and all its parents have the visible style.
    bool isOnScreen(HWND window) const;
    /// The window and all its parents are enabled.
    bool takesInput(HWND window) const;
    CRect screenRect(HWND window) const;
    /// The client area, origin (0, 0).
    CRect clientRect(HWND window) const;
    /// Whether a window is `root` or stands below it.
    bool isWithin(HWND window, HWND root) const;
    /// The first window with this name at or below `root` (null: anywhere), `skip` left out before.
    HWND findByName(std::string_view name, int skip = 0, HWND root = nullptr) const;
    /// Name of the nearest named window at or above, empty for none.
    std::string ownerName(HWND window) const;
    /// The nearest named window at or above, null for none.
    HWND owner(HWND window) const;
    /// All descendants, depth first, in order of creation.
    std::vector<HWND> descendants(HWND window) const;
    /// The tree as text, one window a line: class, ID, name, text, rectangle, state, widget's words.
    std::string tree() const;

    /// Notes a visible change of a window in the journal (kind "control") under the name of the
    /// nearest named window and tells the observer; equal values are left out. In a part of a named
    /// window "text" and "position" become the part's name ("edit", "slider"), other fields stand
    /// behind it ("edit.enabled").
    void noteChange(HWND window, std::string_view field, Value before, Value after);
    /// Is told of each window that changed, was made or went. Null ends it.
    using Observer = std::function<void(HWND)>;
    void setObserver(Observer observer) { m_observer = std::move(observer); }
    /// Asks for a repaint of a window; the observer is told.
    void invalidate(HWND window);

    // Neighbours.

    MenuTable& menus() { return m_menus; }
    GdiTable& gdi() { return m_gdi; }

private:
    struct Dispatch;
    class Running;
    struct Posted {
        HWND window;
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
    };
    struct DueTimer {
        HWND window;
        UINT number;
        std::int64_t due;
    };

    HWND add(CWnd& object, WindowCreation&& creation);
    void sendDestroy(HWND window);
    void remove(HWND window);
    LRESULT runTables(CWnd& object, Dispatch dispatch, const MessageMap* map);
    LRESULT runWidget(Dispatch dispatch);
    LRESULT handleCommonly(const Dispatch& dispatch);
    void noteMessage(const Window& window, UINT message, WPARAM wParam, LPARAM lParam);
    bool preTranslate(MSG& message);
    template <class Delivery>
    void deliver(HWND window, Delivery delivery);
    std::optional<DueTimer> takeDueTimer(std::int64_t end);
    void reportFocus(HWND window, UINT notification);
    void dropFocusWithin(HWND root);
    void setVisibleStyle(Window& window, bool visible);
    void sendPosChanged(HWND window, UINT flags);
    void tellObserver(HWND window);

    Clock& m_clock;
    Journal& m_journal;
    HandleTable<HWND, Window> m_windows;
    std::vector<HWND> m_topWindows;
    std::vector<Dispatch*> m_dispatches;  // running handlers, innermost last; not owned
    std::deque<Posted> m_posted;
    HWND m_focus = nullptr;
    HWND m_reportedFocus = nullptr;  // whose parent got EN_SETFOCUS and not yet EN_KILLFOCUS
    std::set<int> m_held;
    std::uint64_t m_focusMoves = 0;  // tells a handler's own move of the focus
    std::uint64_t m_timersStarted = 0;
    Observer m_observer;
    MenuTable m_menus;
    GdiTable m_gdi;
};

}  // namespace workbench
