#pragma once

#include "workbench/core/clock.h"
#include "workbench/core/journal.h"
#include "workbench/windows/gdi_table.h"
#include "workbench/windows/held_keys.h"
#include "workbench/windows/keyboard_focus.h"
#include "workbench/windows/menu_table.h"
#include "workbench/windows/message_dispatcher.h"
#include "workbench/windows/message_queue.h"
#include "workbench/windows/window_changes.h"
#include "workbench/windows/window_life.h"
#include "workbench/windows/window_state.h"
#include "workbench/windows/window_timers.h"
#include "workbench/windows/window_tree.h"

#include <hostapi/window.h>

#include <cstdint>
#include <functional>
#include <string>
#include <utility>

namespace workbench {

/// The windows of the workbench: their tree, joined with the parts that have one job each.
class WindowSystem : public WindowTree {
public:
    WindowSystem(Clock& clock, Journal& journal);
    WindowSystem(const WindowSystem&) = delete;
    WindowSystem& operator=(const WindowSystem&) = delete;
    /// Ends as `WindowLife::abandonAll` does.
    ~WindowSystem();

    WindowChanges& changes() { return m_changes; }
    MessageDispatcher& messages() { return m_messages; }
    MessageQueue& queue() { return m_queue; }
    WindowTimers& timers() { return m_timers; }
    HeldKeys& keys() { return m_keys; }
    WindowState& state() { return m_state; }
    WindowLife& life() { return m_life; }
    MenuTable& menus() { return m_menus; }
    GdiTable& gdi() { return m_gdi; }

    // The parts' commonest wishes.

    bool create(CWnd& object, WindowCreation creation) {
        return m_life.create(object, std::move(creation));
    }
    bool destroy(HWND window) { return m_life.destroy(window); }
    LRESULT send(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        return m_messages.send(window, message, wParam, lParam);
    }
    void input(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        m_queue.input(window, message, wParam, lParam);
    }
    void advance(std::int64_t milliseconds) { m_timers.advance(milliseconds); }
    HWND focus() const { return m_focus.window(); }
    bool setFocus(HWND window) { return m_focus.moveTo(window); }
    void setOnFocusMoved(std::function<void()> told) { m_focus.setOnMoved(std::move(told)); }
    void show(HWND window, bool visible) { m_state.show(window, visible); }
    void place(HWND window, CRect rect, UINT flags = 0) { m_state.place(window, rect, flags); }
    void setName(HWND window, std::string name) { m_state.setName(window, std::move(name)); }
    void invalidate(HWND window) { m_changes.invalidate(window); }

private:
    WindowChanges m_changes;
    MessageDispatcher m_messages;
    KeyboardFocus m_focus;
    WindowState m_state;
    MessageQueue m_queue;
    WindowTimers m_timers;
    WindowLife m_life;
    HeldKeys m_keys;
    MenuTable m_menus;
    GdiTable m_gdi;
};

}  // namespace workbench
