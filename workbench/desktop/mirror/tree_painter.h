#pragma once

class QPainter;

namespace workbench {
class TreeWidget;
struct Window;
}  // namespace workbench

namespace workbench::desktop {

struct Stage;

/// Draws the rows of a tree that its window shows, in its client coordinates.
void paintTree(QPainter& painter, Stage& stage, const Window& window, const TreeWidget& tree);

}  // namespace workbench::desktop
