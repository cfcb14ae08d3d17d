#pragma once

#include "workbench/windows/drawing_context.h"
#include "workbench/windows/window.h"

#include <vector>

namespace workbench {

class Toolkit;

/// A button. A click, or the space bar, tells the parent (`BN_CLICKED`). It keeps the check that it is
/// given, without showing it: one with `BS_OWNERDRAW` is drawn by its object.
class ButtonWidget final : public Widget {
public:
    explicit ButtonWidget(Toolkit& toolkit) : m_toolkit(toolkit) {}

    // Widget:
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;
    bool takesTab() const override { return true; }

private:
    void press(HWND button);
    void release(const Window& window, CPoint point);
    void click(HWND button);

    Toolkit& m_toolkit;
    WPARAM m_check = 0;  // 0, 1 or 2
    bool m_pressed = false;
};

/// Whether a window is a button that draws itself.
bool isOwnerDrawn(const Window& window);
/// What such a button draws of itself now, as large as it is; nothing for another window.
std::vector<DrawingStep> drawingOf(Toolkit& toolkit, HWND button);

}  // namespace workbench
