#pragma once

#include "workbench/desktop/drawing_view/camera.h"
#include "workbench/desktop/drawing_view/scene.h"

class QPainter;

namespace workbench::desktop {

/// Draws a scene: faces flat-shaded by a light over the viewer's shoulder, the far ones first, with
/// their outlines; then the lines.
void paintScene(QPainter& painter, const Scene& scene, const Camera& camera);

}  // namespace workbench::desktop
