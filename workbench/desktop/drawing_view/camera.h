#pragma once

#include "workbench/desktop/drawing_view/vector.h"
#include "workbench/drawing/records/view_parameters.h"

#include <QPointF>
#include <QSizeF>
#include <optional>
#include <vector>

namespace workbench::desktop {

/// The directions of a view, of length 1 and square to each other.
struct SightAxes {
    Vec3 right;
    Vec3 up;
    Vec3 forward;
};
/// An up vector along the sight is replaced by one that is not.
SightAxes axesOf(const drawing::ViewParameters& view);

/// Shows points of the model as points of a picture: the field of the view lies wholly within the
/// picture, around its middle.
class Camera {
public:
    /// `picture` is in pixels, both sides above 0.
    Camera(const drawing::ViewParameters& view, QSizeF picture);

    /// Where a point stands in the picture. In perspective it must lie before the eye.
    QPointF place(const Vec3& point) const;
    /// The point of the ground, where z is 0, that stands at a place of the picture; nothing where the
    /// sight meets none.
    std::optional<Vec3> pointOnGround(QPointF place) const;
    /// The distance of a point from the eye along the sight.
    double depthOf(const Vec3& point) const { return dot(point - m_eye, m_axes.forward); }
    /// The part of a polygon that lies before the eye; all of it in a parallel view.
    std::vector<Vec3> beforeEye(const std::vector<Vec3>& polygon) const;
    /// Likewise of a line; empty if no part does.
    std::vector<Vec3> lineBeforeEye(const Vec3& from, const Vec3& to) const;
    /// From a point towards the eye; along the sight in a parallel view. Not of length 1.
    Vec3 wayToEye(const Vec3& point) const;
    const SightAxes& axes() const { return m_axes; }
    /// From the eye to the target, above 0.
    double distance() const { return m_distance; }
    /// Pixels a drawing unit, in the plane of the target.
    double scale() const { return m_scale; }

private:
    Vec3 cut(const Vec3& inside, const Vec3& outside) const;

    SightAxes m_axes;
    Vec3 m_eye;
    bool m_perspective;
    double m_distance;
    double m_nearest;  // depth of what can still be shown in perspective
    double m_scale;
    QPointF m_middle;
};

}  // namespace workbench::desktop
