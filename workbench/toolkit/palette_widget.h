#pragma once

#include "workbench/windows/window.h"

namespace workbench {

class WindowSystem;

/// A page of a palette set: leaves context menus and the wheel to the set.
class PaletteWidget final : public Widget {
public:
    explicit PaletteWidget(WindowSystem& windows) : m_windows(windows) {}

    // Widget:
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;

private:
    WindowSystem& m_windows;
};

}  // namespace workbench
