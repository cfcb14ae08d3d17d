#include "workbench/desktop/drawing_view/view_fit.h"

#include "workbench/desktop/drawing_view/camera.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace workbench::desktop {

namespace {

using drawing::ViewParameters;

constexpr double kMargin = 1.05;      // of the field around what is shown
constexpr double kSmallest = 1.0e-4;  // of the ball: the narrowest field
constexpr double kLargest = 100.0;    // likewise, the widest

class Box {
public:
    void take(const Vec3& point) {
        if (!m_least)
            m_least = m_most = point;
        m_least = Vec3{std::min(m_least->x, point.x), std::min(m_least->y, point.y),
                       std::min(m_least->z, point.z)};
        m_most = Vec3{std::max(m_most->x, point.x), std::max(m_most->y, point.y),
                      std::max(m_most->z, point.z)};
    }
    Ball ball() const {
        if (!m_least)
            return {};
        return {scaled(*m_least + *m_most, 0.5), drawing::distance(*m_least, *m_most) / 2.0};
    }

private:
    std::optional<Vec3> m_least;  // nothing: no point was taken
    std::optional<Vec3> m_most;
};

}  // namespace

Ball ballAround(const Scene& scene) {
    Box box;
    for (const SceneFace& face : scene.faces) {
        for (const Vec3& corner : face.corners)
            box.take(corner);
    }
    for (const SceneLine& line : scene.lines) {
        box.take(line.from);
        box.take(line.to);
    }
    return box.ball();
}

ViewParameters fitted(const ViewParameters& view, const Ball& ball, QSizeF picture) {
    const double distance = drawing::distance(view.eye, view.target);
    if (ball.radius <= 0.0 || picture.isEmpty() || distance == 0.0)
        return view;
    // A picture that is wider than the field shows more beside it: its smaller side counts.
    const double side = std::min(picture.width(), picture.height()) / Camera(view, picture).scale();
    const double half = std::atan(side / 2.0 / distance);
    const double away = view.perspective ? ball.radius * kMargin / std::sin(half) : distance;
    const double factor = view.perspective ? away / distance : 2.0 * ball.radius * kMargin / side;
    ViewParameters whole = view;
    whole.target = ball.middle;
    whole.eye =
        ball.middle + scaled(unit(view.eye - view.target), std::max(away, ball.radius * kMargin));
    whole.width = view.width * factor;
    whole.height = view.height * factor;
    return whole;
}

bool isZoomInReason(const ViewParameters& before, const ViewParameters& after, const Ball& ball) {
    if (ball.radius <= 0.0)
        return true;
    const bool isTooClose = after.width < before.width && after.width < ball.radius * kSmallest;
    const bool isTooFar = after.width > before.width && after.width > ball.radius * kLargest;
    return !isTooClose && !isTooFar;
}

}  // namespace workbench::desktop
