#pragma once

#include "workbench/windows/drawing_context.h"

#include <vector>

class QPainter;

namespace workbench::desktop {

struct Stage;

/// Draws what a window drew of itself, step by step.
void paintSteps(QPainter& painter, const Stage& stage, const std::vector<DrawingStep>& steps);

}  // namespace workbench::desktop
