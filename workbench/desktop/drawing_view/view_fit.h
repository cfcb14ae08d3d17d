#pragma once

#include "workbench/desktop/drawing_view/scene.h"
#include "workbench/drawing/records/view_parameters.h"

#include <QSizeF>

namespace workbench::desktop {

/// The ball around all that a scene shows.
struct Ball {
    Vec3 middle;
    double radius = 0.0;  ///< 0 for an empty scene.
};
Ball ballAround(const Scene& scene);

/// The view from the same direction that shows a whole ball, filling a picture; the view itself for a
/// ball without a radius.
drawing::ViewParameters fitted(const drawing::ViewParameters& view, const Ball& ball,
                               QSizeF picture);
/// Whether a zoom from one view to another stays within what makes sense for a ball: a field between
/// a small part of it and many of it. A view beyond that may come back.
bool isZoomInReason(const drawing::ViewParameters& before, const drawing::ViewParameters& after,
                    const Ball& ball);

}  // namespace workbench::desktop
