#pragma once

#include "workbench/drawing/records/view_parameters.h"

#include <QPointF>
#include <QSizeF>

/// What the mouse does with a view. Each gives a view that can be shown: eye and target apart, the
/// field above nothing.
namespace workbench::desktop {

/// Turns the camera about the target: a drag over the whole picture's width is a full turn. The
/// horizon stays level, and the camera stops short of straight up and straight down.
drawing::ViewParameters orbited(const drawing::ViewParameters& view, QPointF pixels,
                                QSizeF picture);
/// Moves the camera so that what was under the mouse stays there.
drawing::ViewParameters panned(const drawing::ViewParameters& view, QPointF pixels, QSizeF picture);
/// Shows less of the drawing, or more below 0, by notches of the wheel.
drawing::ViewParameters zoomed(const drawing::ViewParameters& view, int notches);

}  // namespace workbench::desktop
