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
constexpr double kSteepest = std::numbers::pi / 2.0 - 1.0e-3;  // radians above the horizon

}  // namespace

ViewParameters orbited(const ViewParameters& view, QPointF pixels, QSizeF picture) {
    ViewParameters turnedView = view;
    const Vec3 away = view.eye - view.target;
    const double distance = lengthOf(away);
    if (distance == 0.0)
        return view;
    const double around = std::hypot(away.x, away.y);
    // Straight above there is no direction but that of the picture's lower edge.
    const Vec3 up = axesOf(view).up;
    double azimuth =
        around > distance * 1.0e-9 ? std::atan2(away.y, away.x) : std::atan2(-up.y, -up.x);
    double elevation = std::atan2(away.z, around);
    azimuth -= pixels.x() / picture.width() * 2.0 * std::numbers::pi;
    elevation += pixels.y() / picture.height() * std::numbers::pi;
    elevation = std::clamp(elevation, -kSteepest, kSteepest);
    turnedView.eye = view.target + Vec3{distance * std::cos(elevation) * std::cos(azimuth),
                                        distance * std::cos(elevation) * std::sin(azimuth),
                                        distance * std::sin(elevation)};
    turnedView.up = {0.0, 0.0, 1.0};
    turnedView.up = axesOf(turnedView).up;
    return turnedView;
}

ViewParameters panned(const ViewParameters& view, QPointF pixels, QSizeF picture) {
    const Camera camera(view, picture);
    const Vec3 way = scaled(camera.axes().right, -pixels.x() / camera.scale()) +
                     scaled(camera.axes().up, pixels.y() / camera.scale());
    ViewParameters moved = view;
    moved.eye = view.eye + way;
    moved.target = view.target + way;
    return moved;
}

ViewParameters zoomed(const ViewParameters& view, int notches) {
    const double factor = std::pow(kZoomOfANotch, notches);
    ViewParameters closer = view;
    closer.width = view.width * factor;
    closer.height = view.height * factor;
    const double smaller = std::min(closer.width, closer.height);
    const double larger = std::max(closer.width, closer.height);
    if (smaller < kSmallestField || larger > kLargestField)
        return view;
    if (view.perspective)
        closer.eye = view.target + scaled(view.eye - view.target, factor);
    return closer;
}

}  // namespace workbench::desktop
