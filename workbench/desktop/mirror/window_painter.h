#pragma once

class QPainter;

namespace workbench {
struct Window;
}

namespace workbench::desktop {

struct Stage;

/// Draws what a window shows of itself, in its client coordinates: its children draw themselves.
void paintWindow(QPainter& painter, Stage& stage, Window& window);

}  // namespace workbench::desktop
