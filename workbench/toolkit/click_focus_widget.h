#pragma once

#include "workbench/windows/window.h"

namespace workbench {

/// A window of the host's own, such as the drawing view, that a click gives the focus.
class ClickFocusWidget final : public Widget {
public:
    // Widget:
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;
};

}  // namespace workbench
