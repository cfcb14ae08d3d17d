#include "workbench/navigation/preset_views.h"

#include <cmath>
#include <cstddef>

namespace workbench {

namespace {

using drawing::Vec3;

struct Preset {
    Vec3 direction;  // from the target to the eye
    Vec3 up;
};

constexpr double kThird = 0.57735026918962576;  // 1 / sqrt(3)
constexpr double kSixth = 0.40824829046386302;  // 1 / sqrt(6)

/// By the number of the preset.
constexpr Preset kPresets[kPresetViewCount] = {
    {{0.0, 0.0, 1.0}, {0.0, 1.0, 0.0}},
    {{0.0, 0.0, -1.0}, {0.0, 1.0, 0.0}},
    {{0.0, -1.0, 0.0}, {0.0, 0.0, 1.0}},
    {{0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}},
    {{-1.0, 0.0, 0.0}, {0.0, 0.0, 1.0}},
    {{1.0, 0.0, 0.0}, {0.0, 0.0, 1.0}},
    {{-kThird, -kThird, kThird}, {kSixth, kSixth, 2 * kSixth}},
    {{kThird, -kThird, kThird}, {-kSixth, kSixth, 2 * kSixth}},
    {{kThird, kThird, kThird}, {-kSixth, -kSixth, 2 * kSixth}},
    {{-kThird, kThird, kThird}, {kSixth, -kSixth, 2 * kSixth}},
};

double lengthOf(const Vec3& way) {
    return std::hypot(way.x, way.y, way.z);
}

}  // namespace

void turnTo(drawing::ViewParameters& view, PresetView preset) {
    const Preset& turned = kPresets[static_cast<std::size_t>(preset)];
    const double distance = lengthOf(view.eye - view.target);
    view.eye = view.target + Vec3{turned.direction.x * distance, turned.direction.y * distance,
                                  turned.direction.z * distance};
    view.up = turned.up;
    view.perspective = false;
}

}  // namespace workbench
