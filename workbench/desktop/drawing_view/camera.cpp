#include "workbench/desktop/drawing_view/camera.h"

#include <algorithm>
#include <cmath>

namespace workbench::desktop {

namespace {

constexpr double kNearestShare = 1.0e-3;  // of the distance between eye and target
constexpr double kParallel = 1.0e-9;      // a sine below counts as none

}  // namespace

SightAxes axesOf(const drawing::ViewParameters& view) {
    SightAxes axes;
    axes.forward = unit(view.target - view.eye);
    if (lengthOf(axes.forward) == 0.0)
        axes.forward = {0.0, 0.0, -1.0};
    Vec3 right = cross(axes.forward, unit(view.up));
    if (lengthOf(right) < kParallel)
        right = cross(axes.forward, {0.0, 0.0, 1.0});
    if (lengthOf(right) < kParallel)
        right = cross(axes.forward, {0.0, 1.0, 0.0});
    axes.right = unit(right);
    axes.up = cross(axes.right, axes.forward);
    return axes;
}

Camera::Camera(const drawing::ViewParameters& view, QSizeF picture)
    : m_axes(axesOf(view)),
      m_eye(view.eye),
      m_perspective(view.perspective),
      m_distance(std::max(drawing::distance(view.eye, view.target), 1.0e-12)),
      m_nearest(m_distance * kNearestShare),
      m_scale(std::min(picture.width() / view.width, picture.height() / view.height)),
      m_middle(picture.width() / 2.0, picture.height() / 2.0) {}

QPointF Camera::place(const Vec3& point) const {
    const Vec3 way = point - m_eye;
    double scale = m_scale;
    if (m_perspective)
        scale *= m_distance / dot(way, m_axes.forward);
    return m_middle + QPointF(dot(way, m_axes.right) * scale, -dot(way, m_axes.up) * scale);
}

std::optional<Vec3> Camera::pointOnGround(QPointF place) const {
    const QPointF off = (place - m_middle) / m_scale;
    const Vec3 aside = scaled(m_axes.right, off.x()) + scaled(m_axes.up, -off.y());
    const Vec3 ahead = scaled(m_axes.forward, m_distance);
    const Vec3 from = m_perspective ? m_eye : m_eye + aside;
    const Vec3 way = m_perspective ? ahead + aside : ahead;
    if (std::abs(way.z) < kParallel * m_distance)
        return {};
    const double share = -from.z / way.z;
    if (m_perspective && share <= 0.0)
        return {};
    const Vec3 met = from + scaled(way, share);
    return Vec3{met.x, met.y, 0.0};
}

Vec3 Camera::wayToEye(const Vec3& point) const {
    return m_perspective ? m_eye - point : scaled(m_axes.forward, -m_distance);
}

Vec3 Camera::cut(const Vec3& inside, const Vec3& outside) const {
    const double in = depthOf(inside);
    const double share = (in - m_nearest) / (in - depthOf(outside));
    return inside + scaled(outside - inside, share);
}

std::vector<Vec3> Camera::beforeEye(const std::vector<Vec3>& polygon) const {
    if (!m_perspective)
        return polygon;
    std::vector<Vec3> kept;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const Vec3& here = polygon[i];
        const Vec3& next = polygon[(i + 1) % polygon.size()];
        const bool isHere = depthOf(here) >= m_nearest;
        if (isHere)
            kept.push_back(here);
        if (isHere != (depthOf(next) >= m_nearest))
            kept.push_back(isHere ? cut(here, next) : cut(next, here));
    }
    return kept;
}

std::vector<Vec3> Camera::lineBeforeEye(const Vec3& from, const Vec3& to) const {
    if (!m_perspective)
        return {from, to};
    const bool isFrom = depthOf(from) >= m_nearest;
    const bool isTo = depthOf(to) >= m_nearest;
    if (!isFrom && !isTo)
        return {};
    return {isFrom ? from : cut(to, from), isTo ? to : cut(from, to)};
}

}  // namespace workbench::desktop
