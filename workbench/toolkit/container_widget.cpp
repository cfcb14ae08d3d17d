#include "workbench/toolkit/container_widget.h"

#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/messages.h>

#include <algorithm>

namespace workbench {

void ContainerWidget::add(Window& window, std::unique_ptr<CWnd> control) {
    m_controls.push_back(std::move(control));
    layOut(window);
}

void ContainerWidget::setMargin(Window& window, int pixels) {
    m_margin = std::max(pixels, 0);
    layOut(window);
}

CWnd* ContainerWidget::control(int index) const {
    return index >= 0 && index < count() ? m_controls[static_cast<std::size_t>(index)].get()
                                         : nullptr;
}

bool ContainerWidget::handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                             LRESULT& /*answer*/) {
    switch (message) {
    case WM_SIZE:
        layOut(window);
        return true;
    case WM_QRUI_THEME_CHANGED:
        changeTheme(window, wParam, lParam);
        return true;
    default:
        return false;
    }
}

void ContainerWidget::changeTheme(const Window& window, WPARAM wParam, LPARAM lParam) {
    const std::vector<HWND> children = window.children;
    for (const HWND child : children)
        m_windows.send(child, WM_QRUI_THEME_CHANGED, wParam, lParam);
}

void ContainerWidget::layOut(const Window& window) {
    if (m_controls.empty())
        return;
    const int width = window.rect.Width() - m_margin * (count() - 1);
    for (int i = 0; i < count(); ++i) {
        const Window* const control = m_windows.find(this->control(i)->m_hWnd);
        if (control == nullptr)
            continue;
        const int left = width * i / count() + m_margin * i;
        const int right = width * (i + 1) / count() + m_margin * i;
        m_windows.place(control->handle, {left, 0, right, control->rect.Height()});
    }
}

int ContainerWidget::naturalHeight(const Window& /*window*/, int /*width*/) const {
    int height = 0;
    for (const auto& control : m_controls) {
        if (const Window* const found = m_windows.find(control->m_hWnd))
            height = std::max(height, found->rect.Height());
    }
    return height;
}

}  // namespace workbench
