#include "workbench/toolkit/slider_widget.h"

#include "workbench/toolkit/focus_return.h"
#include "workbench/toolkit/input_messages.h"
#include "workbench/toolkit/key_road.h"
#include "workbench/toolkit/mouse.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/messages.h>

#include <cstdint>

namespace workbench {

namespace {

constexpr int kLinesOfAPage = 5;

}  // namespace

void SliderWidget::setRange(Window& window, int lowest, int highest) {
    m_lowest = lowest;
    m_highest = highest;
    setPosition(window, m_position);
}

void SliderWidget::setPosition(Window& window, int position) {
    const int before = m_position;
    m_position = scale(window).clamp(position);
    m_toolkit.windows().changes().note(window.handle, "position", before, m_position);
}

SliderScale SliderWidget::scale(const Window& window) const {
    return {m_lowest, m_highest, window.rect.Width()};
}

bool SliderWidget::handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                          LRESULT& /*answer*/) {
    switch (message) {
    case kLeftButtonDown:
        press(window, unpackPoint(lParam));
        return true;
    case WM_MOUSEMOVE:
        drag(window, wParam, unpackPoint(lParam));
        return true;
    case kLeftButtonUp:
        release(window);
        return true;
    case kMouseWheel: {
        const int turn = static_cast<std::int16_t>(HIWORD(wParam));
        moveByGesture(window, m_position + turn / kWheelStep * m_lineSize);
        return true;
    }
    case WM_KEYDOWN:
        if (!key(window, wParam))
            passKeyOn(m_toolkit, wParam, lParam);
        return true;
    default:
        return false;
    }
}

std::string SliderWidget::describe(const Window& /*window*/) const {
    return "position " + std::to_string(m_position) + " of " + std::to_string(m_lowest) + " to " +
           std::to_string(m_highest);
}

int SliderWidget::naturalHeight(const Window& /*window*/, int /*width*/) const {
    return kHeight;
}

void SliderWidget::press(Window& window, CPoint point) {
    WindowSystem& windows = m_toolkit.windows();
    const SliderScale places = scale(window);
    const bool onThumb = places.isOnThumb(point.x, m_position);
    const int grip = onThumb ? point.x - places.middleAt(m_position) : 0;
    m_drag = Drag{grip, point.x, windows.focus()};
    m_toolkit.mouse().capture(window.handle);
    const HWND slider = window.handle;
    takeFocus(m_toolkit, slider);
    // Whoever lost the focus may have ended this window.
    Window* const living = windows.find(slider);
    if (living != nullptr && !onThumb)
        moveByGesture(*living, places.positionAt(point.x));
}

void SliderWidget::drag(Window& window, WPARAM held, CPoint point) {
    if (!m_drag)
        return;
    const int moved = point.x - m_drag->x;
    m_drag->x = point.x;
    const bool fine = (held & kControlHeld) != 0;
    moveByGesture(window,
                  fine ? m_position + moved : scale(window).positionAt(point.x - m_drag->grip));
}

void SliderWidget::release(Window& window) {
    if (!m_drag)
        return;
    const HWND before = m_drag->focus;
    m_drag.reset();
    m_toolkit.mouse().capture(nullptr);
    giveFocusBack(m_toolkit, window.handle, before);
}

/// Moves the thumb by a key. False for a key that means nothing here.
bool SliderWidget::key(Window& window, WPARAM key) {
    switch (key) {
    case kKeyLeft:
    case kKeyDown:
        moveByGesture(window, m_position - m_lineSize);
        return true;
    case kKeyRight:
    case kKeyUp:
        moveByGesture(window, m_position + m_lineSize);
        return true;
    case kKeyPageUp:
        moveByGesture(window, m_position + kLinesOfAPage * m_lineSize);
        return true;
    case kKeyPageDown:
        moveByGesture(window, m_position - kLinesOfAPage * m_lineSize);
        return true;
    case kKeyHome:
        moveByGesture(window, m_lowest);
        return true;
    case kKeyEnd:
        moveByGesture(window, m_highest);
        return true;
    default:
        return false;
    }
}

/// Moves the thumb and tells the parent if that changed the position.
void SliderWidget::moveByGesture(Window& window, int position) {
    const int before = m_position;
    setPosition(window, position);
    if (m_position == before)
        return;
    const auto low = static_cast<std::uint16_t>(m_position);
    m_toolkit.windows().send(window.parent, WM_QRUI_POSITION, low,
                             reinterpret_cast<LPARAM>(window.handle));
}

}  // namespace workbench
