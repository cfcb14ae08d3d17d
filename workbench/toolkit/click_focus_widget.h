#pragma once

#include "workbench/windows/window.h"

namespace workbench {

class WindowSystem;

/// A window of the host's own, such as the drawing view, that a click gives the focus.
class ClickFocusWidget final : public Widget {
public:
    explicit ClickFocusWidget(WindowSystem& windows) : m_windows(windows) {}

    // Widget:
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;

private:
    WindowSystem& m_windows;
};

}  // namespace workbench
