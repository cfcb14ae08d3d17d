#include "workbench/desktop/drawing_view/view_motion.h"

#include "workbench/desktop/drawing_view/camera.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace workbench::desktop {

namespace {

using drawing::ViewParameters;

constexpr double kZoomOfANotch = 0.85;
constexpr double kSmallestField = 1.0e-6;                      // drawing units
constexpr double kLargestField = 1.0e9;                        // likewise
constexpr double kPole = std::numbers::pi / 2.0 - 1.0e-9;      // radians above the horizon
constexpr double kSteepest = std::numbers::pi / 2.0 - 1.0e-3;  // likewise

bool isFinite(const Vec3& point) {
    return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}

/// The moved view, or the one before if nothing could be seen in it: far away from the origin, or
/// close to the target, there are too few digits to tell eye and target apart.
ViewParameters shownOr(const ViewParameters& moved, const ViewParameters& before) {
    const bool isShown = isFinite(moved.eye) && isFinite(moved.target) && isFinite(moved.up) &&
                         moved.eye != moved.target;
    return isShown ? moved : before;
}

/// The direction in which the eye stands, in radians. Straight above or below the target it is told
/// by the picture's upper edge.
double azimuthOf(const ViewParameters& view, const Vec3& away, double elevation) {
    if (std::abs(elevation) < kPole)
        return std::atan2(away.y, away.x);
    const Vec3 up = axesOf(view).up;
    return away.z > 0.0 ? std::atan2(-up.y, -up.x) : std::atan2(up.y, up.x);
}

}  // namespace

ViewParameters orbited(const ViewParameters& view, QPointF pixels, QSizeF picture) {
    const Vec3 away = view.eye - view.target;
    const double distance = lengthOf(away);
    if (pixels.isNull() || picture.isEmpty() || distance == 0.0)
        return view;
    const double before = std::atan2(away.z, std::hypot(away.x, away.y));
    const double azimuth =
        azimuthOf(view, away, before) - pixels.x() / picture.width() * 2.0 * std::numbers::pi;
    const double elevation = std::clamp(before + pixels.y() / picture.height() * std::numbers::pi,
                                        -kSteepest, kSteepest);
    ViewParameters turnedView = view;
    turnedView.eye = view.target + Vec3{distance * std::cos(elevation) * std::cos(azimuth),
                                        distance * std::cos(elevation) * std::sin(azimuth),
                                        distance * std::sin(elevation)};
    turnedView.up = {0.0, 0.0, 1.0};
    turnedView.up = axesOf(turnedView).up;
    return shownOr(turnedView, view);
}

ViewParameters panned(const ViewParameters& view, QPointF pixels, QSizeF picture) {
    if (picture.isEmpty())
        return view;
    const Camera camera(view, picture);
    const Vec3 way = scaled(camera.axes().right, -pixels.x() / camera.scale()) +
                     scaled(camera.axes().up, pixels.y() / camera.scale());
    ViewParameters moved = view;
    moved.eye = view.eye + way;
    moved.target = view.target + way;
    return shownOr(moved, view);
}

ViewParameters zoomed(const ViewParameters& view, double notches) {
    const double factor = std::pow(kZoomOfANotch, notches);
    ViewParameters closer = view;
    closer.width = view.width * factor;
    closer.height = view.height * factor;
    const bool isTooSmall = std::min(closer.width, closer.height) < kSmallestField;
    const bool isTooLarge = std::max(closer.width, closer.height) > kLargestField;
    // A view that is beyond a limit already can still come back.
    if ((notches > 0 && isTooSmall) || (notches < 0 && isTooLarge))
        return view;
    if (view.perspective)
        closer.eye = view.target + scaled(view.eye - view.target, factor);
    return shownOr(closer, view);
}

ViewParameters swivelled(const ViewParameters& view, QPointF pixels, QSizeF picture) {
    const Vec3 sight = view.target - view.eye;
    const double distance = lengthOf(sight);
    if (pixels.isNull() || picture.isEmpty() || distance == 0.0)
        return view;
    const Camera camera(view, picture);
    // The angle under which one pixel is seen.
    const double step = std::atan(1.0 / (camera.scale() * distance));
    const double azimuth = std::atan2(sight.y, sight.x) + pixels.x() * step;
    const double elevation =
        std::clamp(std::atan2(sight.z, std::hypot(sight.x, sight.y)) + pixels.y() * step,
                   -kSteepest, kSteepest);
    ViewParameters moved = view;
    moved.target = view.eye + Vec3{distance * std::cos(elevation) * std::cos(azimuth),
                                   distance * std::cos(elevation) * std::sin(azimuth),
                                   distance * std::sin(elevation)};
    moved.up = {0.0, 0.0, 1.0};
    moved.up = axesOf(moved).up;
    return shownOr(moved, view);
}

ViewParameters walked(const ViewParameters& view, QPointF pixels, QSizeF picture, bool onFoot) {
    if (picture.isEmpty())
        return view;
    ViewParameters moved = swivelled(view, {-pixels.x(), 0.0}, picture);
    Vec3 ahead = moved.target - moved.eye;
    const double distance = lengthOf(ahead);
    if (onFoot)
        ahead.z = 0.0;
    // A drag over the whole height goes as far as the target was.
    const Vec3 way = scaled(unit(ahead), -pixels.y() / picture.height() * distance);
    moved.eye = moved.eye + way;
    moved.target = moved.target + way;
    return shownOr(moved, view);
}

}  // namespace workbench::desktop
