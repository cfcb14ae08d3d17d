#include "workbench/toolkit/button_widget.h"

#include "workbench/base/input_error.h"
#include "workbench/toolkit/focus_return.h"
#include "workbench/toolkit/input_messages.h"
#include "workbench/toolkit/key_road.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/window/button.h>

#include <optional>
#include <utility>

namespace workbench {

bool ButtonWidget::handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                          LRESULT& answer) {
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        press(window.handle);
        return true;
    case kLeftButtonUp:
        release(window, unpackPoint(lParam));
        return true;
    case kCharMessage:
        if (wParam == L' ')
            click(window.handle);
        return true;
    case WM_KEYDOWN:
        if (wParam == kKeyTab)
            passKeyOn(m_toolkit, wParam, lParam);
        return true;
    case BM_GETCHECK:
        answer = static_cast<LRESULT>(m_check);
        return true;
    case BM_SETCHECK:
        m_check = wParam;
        return true;
    case WM_DRAWITEM:
        static_cast<CButton*>(window.object)
            ->DrawItem(reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return true;
    default:
        return false;
    }
}

void ButtonWidget::press(HWND button) {
    m_pressed = true;
    m_toolkit.mouse().capture(button);
    takeFocus(m_toolkit, button);
}

void ButtonWidget::release(const Window& window, CPoint point) {
    if (!std::exchange(m_pressed, false))
        return;
    const HWND button = window.handle;
    m_toolkit.mouse().capture(nullptr);
    if (m_toolkit.windows().clientRect(button).PtInRect(point))
        click(button);
}

void ButtonWidget::click(HWND button) {
    WindowSystem& windows = m_toolkit.windows();
    const Window& window = *windows.find(button);
    windows.send(window.parent, WM_COMMAND, MAKELONG(static_cast<UINT>(window.id), BN_CLICKED),
                 reinterpret_cast<LPARAM>(button));
}

bool isOwnerDrawn(const Window& window) {
    return dynamic_cast<const ButtonWidget*>(window.widget.get()) != nullptr &&
           (window.style & BS_OWNERDRAW) == BS_OWNERDRAW;
}

std::vector<DrawingStep> drawingOf(Toolkit& toolkit, HWND button) {
    WindowSystem& windows = toolkit.windows();
    const Window* const window = windows.find(button);
    if (window == nullptr || !isOwnerDrawn(*window))
        return {};
    const auto pixelsOf = [&toolkit](HBITMAP bitmap) -> std::optional<PngPicture> {
        try {
            return toolkit.pictures().pixels(bitmap);
        } catch (const InputError&) {
            return std::nullopt;
        }
    };
    const CRect client = windows.clientRect(button);
    DrawingContext context(client, windows.gdi(), pixelsOf);
    const HDC handle = windows.gdi().addContext(context);
    const DRAWITEMSTRUCT item{button, handle, client};
    windows.send(button, WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
    windows.gdi().removeContext(handle);
    return context.steps();
}

}  // namespace workbench
