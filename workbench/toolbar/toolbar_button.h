#pragma once

#include "workbench/toolkit/control_widget.h"

namespace workbench {

class WindowSystem;

/// A button that tells its parent of a click.
class ToolbarButton : public ControlWidget {
public:
    explicit ToolbarButton(WindowSystem& windows) : m_windows(windows) {}

    // ControlWidget:
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;
    int naturalHeight(const Window& window, int width) const override;

private:
    WindowSystem& m_windows;
};

}  // namespace workbench
