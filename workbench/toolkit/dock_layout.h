#pragma once

#include "workbench/toolkit/bar_place.h"

#include <hostapi/window/geometry.h>

#include <vector>

namespace workbench {

/// A bar that docks at an edge of the main frame, in pixels.
struct DockedBar {
    Edge edge = Edge::Right;
    int width = 0;
    int height = -1;  ///< -1: all that the edge has.
    bool shown = false;
};

/// Where the parts of the main frame stand, in its client area.
struct DockLayout {
    CRect leftDock;
    CRect rightDock;
    CRect drawingView;
    CRect commandLine;
    std::vector<CRect> bars;  ///< One a bar, within its dock. Hidden bars have a size all the same.
};

constexpr int kCommandLineHeight = 60;  ///< Pixels.

/// Docks the bars from top to bottom at their edges; the drawing view takes what they leave.
DockLayout layoutDocks(CSize client, const std::vector<DockedBar>& bars);

}  // namespace workbench
