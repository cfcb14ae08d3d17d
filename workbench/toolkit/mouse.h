#pragma once

#include "workbench/windows/window_system.h"

#include <hostapi/window.h>

#include <cstdint>
#include <functional>
#include <utility>

namespace workbench {

class Toolkit;

/// The user's mouse: hands its gestures to the windows as input messages. Windows that take no input
/// get none. While a window holds the mouse all moves and releases go to it.
class Mouse {
public:
    /// How a gesture begins: as one of its own, or as another turn of the same wheel.
    enum class Begin { New, Continue };
    /// Told of each gesture: from press to release, or a turn of the wheel.
    struct GestureEvents {
        std::function<void(Begin)> began;
        std::function<void()> ended;
    };
    /// A turn continues the one before on the same window if it comes no later, in milliseconds.
    static constexpr std::int64_t kWheelRest = 500;

    /// A part of the toolkit, of which it asks only later.
    explicit Mouse(Toolkit& toolkit);

    void setGestureEvents(GestureEvents events) { m_gestureEvents = std::move(events); }

    /// The deepest window on screen at a client point of a window, the window itself if there is
    /// none deeper. `point` is changed to that window's client coordinates.
    HWND windowAt(HWND window, CPoint& point) const;

    /// Points are in the window's client coordinates. False if the window takes no input.
    bool move(HWND window, CPoint point, WPARAM held = 0);
    bool press(HWND window, CPoint point);
    bool release(HWND window, CPoint point);
    bool doubleClick(HWND window, CPoint point);
    /// Presses the right button and asks for the context menu.
    bool contextMenu(HWND window, CPoint point);
    /// Turns the wheel by notches, forward above 0.
    bool wheel(HWND window, CPoint point, int notches);
    /// Leaves the window that the mouse is over, and its palette set.
    void leave();

    /// Has a window told once when the mouse leaves it; soon if it is elsewhere.
    void tellOfLeaving(HWND window);
    /// Has a window hold the mouse; null lets it go.
    void capture(HWND window) { m_captured = window; }
    /// The window that it is over; null for none of ours.
    HWND over() const { return m_over; }
    /// Where it was last over a window, in that window's client area.
    CPoint point() const { return m_point; }
    HWND captured() const { return m_captured; }

private:
    void hideTips();
    /// As the wParam of a mouse message tells them.
    WPARAM heldKeys() const;
    bool send(HWND window, UINT message, WPARAM wParam, CPoint point);
    void noteOver(HWND window, CPoint point);
    void tellThatItLeft();
    void beginGesture(Begin begin);
    void endGesture();
    /// Notes a turn of the wheel over a window.
    Begin turnOver(HWND window);

    Toolkit& m_toolkit;
    WindowSystem& m_windows;
    HWND m_over = nullptr;      // null: over none of ours
    CPoint m_point;             // in its client area
    HWND m_captured = nullptr;  // null: no window holds the mouse
    HWND m_asked = nullptr;     // to be told when the mouse leaves it; null: none
    GestureEvents m_gestureEvents;
    bool m_inGesture = false;
    HWND m_turnedOver = nullptr;     // null: something else was done since the wheel was turned
    std::int64_t m_turnedUntil = 0;  // when that run of the wheel is over
};

}  // namespace workbench
