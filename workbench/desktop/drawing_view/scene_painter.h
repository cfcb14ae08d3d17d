#pragma once

#include "workbench/desktop/drawing_view/camera.h"
#include "workbench/desktop/drawing_view/scene.h"

class QPainter;

namespace workbench::desktop {

/// Draws a scene: lines, and faces flat-shaded by a light over the viewer's shoulder with their
/// outlines, the far ones first.
void paintScene(QPainter& painter, const Scene& scene, const Camera& camera);

}  // namespace workbench::desktop
