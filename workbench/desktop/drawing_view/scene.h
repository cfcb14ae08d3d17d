#pragma once

#include "workbench/desktop/drawing_view/vector.h"
#include "workbench/drawing/database/database.h"

#include <QColor>
#include <vector>

namespace workbench::desktop {

/// A flat polygon of the drawing.
struct SceneFace {
    std::vector<Vec3> corners;
    Vec3 normal;  ///< Of length 1.
    QColor colour;
    drawing::ObjectId entity = {};
};

/// A straight line of the drawing.
struct SceneLine {
    Vec3 from;
    Vec3 to;
    QColor colour;
    drawing::ObjectId entity = {};
};

/// What a viewport shows.
struct Scene {
    std::vector<SceneFace> faces;
    std::vector<SceneLine> lines;
};

/// How a scene is made.
struct SceneSettings {
    int lockedFading = 50;  ///< LAYLOCKFADECTL: percent; nothing fades at 0 and below.
    QColor background;      ///< What fades, fades into it.
    QColor ink;             ///< Of colour 7, which is that of the paper's opposite.
};

/// The living entities of a drawing that a viewport shows: none of a layer that is off or frozen, in
/// the drawing or in that viewport.
Scene sceneOf(const drawing::Database& database, drawing::ObjectId viewport,
              const SceneSettings& settings);

}  // namespace workbench::desktop
