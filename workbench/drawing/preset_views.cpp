#include "workbench/drawing/preset_views.h"

#include <cstddef>

namespace workbench::drawing {

namespace {

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

}  // namespace

void turnTo(ViewParameters& view, PresetView preset) {
    const Preset& turned = kPresets[static_cast<std::size_t>(preset)];
    const double away = distance(view.eye, view.target);
    view.eye = view.target + Vec3{turned.direction.x * away, turned.direction.y * away,
                                  turned.direction.z * away};
    view.up = turned.up;
    view.perspective = false;
}

}  // namespace workbench::drawing
