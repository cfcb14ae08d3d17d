#include "workbench/toolkit/mouse.h"

#include "workbench/toolkit/control_widget.h"
#include "workbench/toolkit/focus_return.h"
#include "workbench/toolkit/input_messages.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/toolkit.h"

#include <cstdint>
#include <utility>

namespace workbench {

Mouse::Mouse(Toolkit& toolkit) : m_toolkit(toolkit), m_windows(toolkit.windows()) {}

HWND Mouse::windowAt(HWND window, CPoint& point) const {
    const Window* const found = m_windows.find(window);
    if (found == nullptr)
        return window;
    for (auto child = found->children.rbegin(); child != found->children.rend(); ++child) {
        const Window& below = *m_windows.find(*child);
        if (!below.hasVisibleStyle() || !below.rect.PtInRect(point))
            continue;
        point = {point.x - below.rect.left, point.y - below.rect.top};
        return windowAt(*child, point);
    }
    return window;
}

bool Mouse::move(HWND window, CPoint point, WPARAM held) {
    noteOver(window, point);
    return send(window, WM_MOUSEMOVE, held | heldKeys(), point);
}

bool Mouse::press(HWND window, CPoint point) {
    noteOver(window, point);
    hideTips();
    m_turnedOver = nullptr;
    beginGesture(Begin::New);
    leavePopupOnPress(m_toolkit, window);
    giveFocusBackOnPress(m_toolkit, window);
    const bool taken = send(window, kLeftButtonDown, kLeftButtonHeld | heldKeys(), point);
    if (!taken)
        endGesture();
    return taken;
}

bool Mouse::release(HWND window, CPoint point) {
    const bool taken = send(window, kLeftButtonUp, heldKeys(), point);
    endGesture();
    return taken;
}

void Mouse::beginGesture(Begin begin) {
    // A press whose release went elsewhere is over.
    endGesture();
    m_inGesture = true;
    if (m_gestureEvents.began)
        m_gestureEvents.began(begin);
}

void Mouse::endGesture() {
    if (std::exchange(m_inGesture, false) && m_gestureEvents.ended)
        m_gestureEvents.ended();
}

Mouse::Begin Mouse::turnOver(HWND window) {
    const std::int64_t now = m_windows.timers().now();
    const bool continues = window == m_turnedOver && now <= m_turnedUntil;
    m_turnedOver = window;
    m_turnedUntil = now + kWheelRest;
    return continues ? Begin::Continue : Begin::New;
}

bool Mouse::doubleClick(HWND window, CPoint point) {
    return press(window, point) && release(window, point) &&
           send(window, kLeftButtonDoubleClick, kLeftButtonHeld | heldKeys(), point) &&
           release(window, point);
}

bool Mouse::contextMenu(HWND window, CPoint point) {
    noteOver(window, point);
    hideTips();
    leavePopupOnPress(m_toolkit, window);
    return send(window, WM_RBUTTONDOWN, heldKeys(), point) &&
           send(window, kRightButtonUp, heldKeys(), point) &&
           send(window, kContextMenuMessage, 0, point);
}

bool Mouse::wheel(HWND window, CPoint point, int notches) {
    const auto turn = static_cast<UINT>(notches * kWheelStep) & 0xffffU;
    const bool isGesture = !m_inGesture;
    if (isGesture)
        beginGesture(turnOver(window));
    const bool taken = send(window, kMouseWheel, MAKELONG(0, turn), point);
    if (isGesture)
        endGesture();
    return taken;
}

void Mouse::leave() {
    m_toolkit.toolTips().hide();
    const CQrUiPaletteSet* const set = paletteSetAbove(m_windows, m_over);
    const HWND left = m_over;
    m_over = nullptr;
    tellThatItLeft();
    if (paletteSetAbove(m_windows, left) != nullptr)
        send(left, kMouseLeave, 0, {});
    if (set != nullptr)
        giveFocusBackOnLeave(m_toolkit, set->m_hWnd);
}

void Mouse::tellOfLeaving(HWND window) {
    if (m_over == window)
        m_asked = window;
    else
        m_windows.queue().post(window, WM_MOUSELEAVE, 0, 0);
}

void Mouse::tellThatItLeft() {
    if (const HWND asked = std::exchange(m_asked, nullptr))
        m_windows.send(asked, WM_MOUSELEAVE, 0, 0);
}

void Mouse::hideTips() {
    m_toolkit.toolTips().hide();
    m_toolkit.balloons().dismiss();
}

WPARAM Mouse::heldKeys() const {
    return m_windows.keys().isHeld(VK_SHIFT) ? kShiftHeld : 0;
}

bool Mouse::send(HWND window, UINT message, WPARAM wParam, CPoint point) {
    const Window* const captured = m_windows.find(m_captured);
    if (captured != nullptr && m_captured != window) {
        const CRect from = m_windows.screenRect(window);
        const CRect to = m_windows.screenRect(m_captured);
        point = {point.x + from.left - to.left, point.y + from.top - to.top};
        window = m_captured;
    }
    if (m_windows.find(window) == nullptr || !m_windows.takesInput(window))
        return false;
    m_windows.input(window, message, wParam, packPoint(point));
    return true;
}

/// Keeps the window that the mouse is over, and its tooltip, up to date.
void Mouse::noteOver(HWND window, CPoint point) {
    const CQrUiPaletteSet* const before = paletteSetAbove(m_windows, m_over);
    if (before != nullptr && before != paletteSetAbove(m_windows, window))
        leave();
    m_over = window;
    m_point = point;
    if (m_asked != window)
        tellThatItLeft();
    const Window* const found = m_windows.find(window);
    if (found == nullptr)
        return;
    const auto* const control = dynamic_cast<const ControlWidget*>(found->widget.get());
    ToolTips& tips = m_toolkit.toolTips();
    if (control == nullptr)
        tips.mouseOver(window, {});
    else if (control->isTipRelayed())
        tips.mouseOverRelayed(window);
    else
        tips.mouseOver(window, control->tipAt(*found, point));
}

}  // namespace workbench
