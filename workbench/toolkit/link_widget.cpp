#include "workbench/toolkit/link_widget.h"

#include "workbench/toolkit/input_messages.h"

#include <hostapi/zorq/commands.h>

namespace workbench {

bool LinkWidget::handle(Window& /*window*/, UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/,
                        LRESULT& /*answer*/) {
    switch (message) {
    case kLeftButtonDown:
        m_pressed = true;
        return true;
    case kLeftButtonUp:
        if (m_pressed)
            vxedHelp(nullptr, m_topic.c_str(), 0);
        m_pressed = false;
        return true;
    default:
        return false;
    }
}

}  // namespace workbench
