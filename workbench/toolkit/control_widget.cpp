#include "workbench/toolkit/control_widget.h"

#include "workbench/toolkit/theme.h"

namespace workbench {

int ControlWidget::naturalHeight(const Window& window, int /*width*/) const {
    return window.rect.Height();
}

std::wstring ControlWidget::tipAt(const Window& /*window*/, CPoint /*point*/) const {
    return m_tip;
}

void ControlWidget::takeFontOf(Window& window, LPARAM theme) {
    const auto* const known =
        dynamic_cast<const Theme*>(reinterpret_cast<const CQrUiTheme*>(theme));
    if (window.font == 0 || known == nullptr)
        return;
    const auto* const font = static_cast<const CFont*>(known->dataPtr(Theme::kControlFontPointer));
    window.font = font == nullptr ? 0 : font->GetSafeHandle();
}

}  // namespace workbench
