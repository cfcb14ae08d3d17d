#include "workbench/toolbar/toolbar_button.h"

#include "workbench/toolkit/input_messages.h"
#include "workbench/windows/window_system.h"

namespace workbench {

namespace {

constexpr int kHeight = 22;  // pixels
constexpr UINT kClicked = 0;

}  // namespace

bool ToolbarButton::handle(Window& window, UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/,
                           LRESULT& /*answer*/) {
    if (message != kLeftButtonDown)
        return false;
    m_windows.send(window.parent, WM_COMMAND, MAKELONG(static_cast<UINT>(window.id), kClicked),
                   reinterpret_cast<LPARAM>(window.handle));
    return true;
}

int ToolbarButton::naturalHeight(const Window& /*window*/, int /*width*/) const {
    return kHeight;
}

}  // namespace workbench
