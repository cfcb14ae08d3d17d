#pragma once

#include "workbench/desktop/drawing_view/camera.h"
#include "workbench/desktop/drawing_view/scene.h"

#include <QRectF>
#include <vector>

class QPainter;

namespace workbench::desktop {

/// The entity that a place of the picture shows, also a little beside a line; null for none.
drawing::ObjectId entityAt(const Scene& scene, const Camera& camera, QPointF place);

/// Which entities a window takes.
enum class PickWindow {
    Inside,    ///< those that lie wholly in it
    Touching,  ///< those that reach into it, too
};
/// The entities that a window of the picture takes, each once. What lies behind the eye is in none.
std::vector<drawing::ObjectId> entitiesIn(const Scene& scene, const Camera& camera,
                                          const QRectF& window, PickWindow kind);

/// Marks entities by their outlines, also where others cover them.
void paintChosen(QPainter& painter, const Scene& scene, const Camera& camera,
                 const std::vector<drawing::ObjectId>& chosen, const QColor& ink);

}  // namespace workbench::desktop
