#pragma once

#include "workbench/windows/window.h"

namespace workbench {

/// A page of a palette set: leaves context menus and the wheel to the set.
class PaletteWidget final : public Widget {
public:
    // Widget:
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;
};

}  // namespace workbench
