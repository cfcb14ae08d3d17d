#pragma once

#include "workbench/windows/window.h"

namespace workbench {

class Toolkit;

/// A window of the host's own, such as the drawing view, that a click gives the focus if it may be
/// taken from where it is.
class ClickFocusWidget final : public Widget {
public:
    explicit ClickFocusWidget(Toolkit& toolkit) : m_toolkit(toolkit) {}

    // Widget:
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;

private:
    Toolkit& m_toolkit;
};

}  // namespace workbench
