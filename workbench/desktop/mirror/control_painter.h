#pragma once

class QPainter;

namespace workbench {
struct Window;
}

namespace workbench::desktop {

struct Stage;

/// Draws a slider, an edit field, a list's field, a tree, a button that draws itself, or a toolbar
/// button. False for another window.
bool paintControl(QPainter& painter, Stage& stage, Window& window);

}  // namespace workbench::desktop
