#include "workbench/toolkit/dock_layout.h"

#include <algorithm>

namespace workbench {

namespace {

constexpr int kLowestBar = 60;  // pixels

/// One edge while bars are stacked at it.
struct Stack {
    int width = 0;
    int bottom = 0;
};

}  // namespace

DockLayout layoutDocks(CSize client, const std::vector<DockedBar>& bars) {
    const int dockHeight = std::max(0, client.cy - kCommandLineHeight);
    Stack left;
    Stack right;
    DockLayout layout;
    for (const DockedBar& bar : bars) {
        Stack& stack = bar.edge == Edge::Left ? left : right;
        const int top = bar.shown ? stack.bottom : 0;
        const int room = std::max(kLowestBar, dockHeight - top);
        const int height = bar.height < 0 ? room : std::clamp(bar.height, kLowestBar, room);
        layout.bars.push_back({0, top, bar.width, top + height});
        if (!bar.shown)
            continue;
        stack.bottom = top + height;
        stack.width = std::max(stack.width, bar.width);
    }
    layout.leftDock = {0, 0, left.width, dockHeight};
    layout.rightDock = {client.cx - right.width, 0, client.cx, dockHeight};
    layout.drawingView = {left.width, 0, client.cx - right.width, dockHeight};
    layout.commandLine = {0, dockHeight, client.cx, client.cy};
    return layout;
}

}  // namespace workbench
