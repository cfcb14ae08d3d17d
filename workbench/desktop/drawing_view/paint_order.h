#pragma once

#include "workbench/desktop/drawing_view/camera.h"

#include <QPolygonF>
#include <cstddef>
#include <vector>

namespace workbench::desktop {

/// A face or a line as it lies in a picture.
struct PlacedShape {
    std::vector<Vec3> corners;  ///< Before the eye; two for a line.
    Vec3 normal;                ///< Of length 1 on either side; zero for a line.
    QPolygonF outline;          ///< The corners in pixels.
};

/// The order in which shapes are painted so that the nearer ones cover those behind them, as indexes
/// of `shapes`. Shapes that pass through each other or cover each other in a ring can't all be
/// right; they go by the depth of their middles, as all do when too many lie over each other.
std::vector<std::size_t> paintOrder(const std::vector<PlacedShape>& shapes, const Camera& camera);

}  // namespace workbench::desktop
