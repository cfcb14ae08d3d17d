#include "workbench/toolkit/typing_widget.h"

#include "workbench/toolkit/focus_return.h"
#include "workbench/toolkit/input_messages.h"

namespace workbench {

bool TypingWidget::handle(Window& window, UINT message, WPARAM wParam, LPARAM /*lParam*/,
                          LRESULT& /*answer*/) {
    switch (message) {
    case kLeftButtonDown:
        takeFocus(m_toolkit, window.handle);
        return true;
    case kCharMessage:
        type(static_cast<wchar_t>(wParam));
        return true;
    case WM_KEYDOWN:
        if (wParam == VK_RETURN)
            type(L'\n');
        else if (wParam == VK_ESCAPE)
            type(static_cast<wchar_t>(VK_ESCAPE));
        return true;
    default:
        return false;
    }
}

void TypingWidget::type(wchar_t character) const {
    if (m_typed)
        m_typed(character);
}

}  // namespace workbench
