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
/// Shows less of the drawing, or more below 0, by notches of the wheel or parts of them.
drawing::ViewParameters zoomed(const drawing::ViewParameters& view, double notches);
/// Turns the camera on its place: what was under the mouse follows it, as far as a turn can.
drawing::ViewParameters swivelled(const drawing::ViewParameters& view, QPointF pixels,
                                  QSizeF picture);
/// Takes a walk: a drag upwards goes forward, one to a side turns there. On foot the camera keeps its
/// height; otherwise it goes where it looks.
drawing::ViewParameters walked(const drawing::ViewParameters& view, QPointF pixels, QSizeF picture,
                               bool onFoot);

}  // namespace workbench::desktop
