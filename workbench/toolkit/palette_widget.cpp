#include "workbench/toolkit/palette_widget.h"

#include "workbench/toolkit/input_messages.h"
#include "workbench/windows/window_system.h"

namespace workbench {

bool PaletteWidget::handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                           LRESULT& answer) {
    if (message != kContextMenuMessage && message != kMouseWheel)
        return false;
    answer = m_windows.send(window.parent, message, wParam, lParam);
    return true;
}

}  // namespace workbench
