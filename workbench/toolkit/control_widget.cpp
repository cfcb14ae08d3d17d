#include "workbench/toolkit/control_widget.h"

namespace workbench {

int ControlWidget::naturalHeight(const Window& window, int /*width*/) const {
    return window.rect.Height();
}

std::wstring ControlWidget::tipAt(const Window& /*window*/, CPoint /*point*/) const {
    return m_tip;
}

}  // namespace workbench
