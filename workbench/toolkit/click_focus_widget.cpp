#include "workbench/toolkit/click_focus_widget.h"

#include "workbench/toolkit/focus_return.h"
#include "workbench/toolkit/input_messages.h"

namespace workbench {

bool ClickFocusWidget::handle(Window& window, UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/,
                              LRESULT& /*answer*/) {
    if (message != kLeftButtonDown)
        return false;
    takeFocus(m_toolkit, window.handle);
    return true;
}

}  // namespace workbench
