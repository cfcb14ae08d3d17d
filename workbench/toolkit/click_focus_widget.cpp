#include "workbench/toolkit/click_focus_widget.h"

#include "workbench/host/workbench.h"
#include "workbench/toolkit/input_messages.h"
#include "workbench/windows/window_system.h"

namespace workbench {

bool ClickFocusWidget::handle(Window& window, UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/,
                              LRESULT& /*answer*/) {
    if (message != kLeftButtonDown)
        return false;
    Workbench::current().windows().setFocus(window.handle);
    return true;
}

}  // namespace workbench
