#include "workbench/toolkit/click_focus_widget.h"

#include "workbench/toolkit/input_messages.h"
#include "workbench/windows/window_system.h"

namespace workbench {

bool ClickFocusWidget::handle(Window& window, UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/,
                              LRESULT& /*answer*/) {
    if (message != kLeftButtonDown)
        return false;
    m_windows.setFocus(window.handle);
    return true;
}

}  // namespace workbench
