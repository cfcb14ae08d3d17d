#include "workbench/drawing/preset_views.h"

#include <gtest/gtest.h>

#include <cmath>

namespace workbench::drawing {
namespace {

struct PresetCase {
    PresetView preset;
    Vec3 side;  // the signs of the way from the target to the eye
};
class PresetViewsTest : public testing::TestWithParam<PresetCase> {};

int sign(double value) {
    return std::fabs(value) < 1.0e-9 ? 0 : value < 0.0 ? -1 : 1;
}

TEST_P(PresetViewsTest, TurnsTheCameraAroundItsTarget) {
    ViewParameters view;
    view.target = {5.0, 6.0, 7.0};
    view.eye = {5.0, 6.0, 17.0};
    view.perspective = true;
    turnTo(view, GetParam().preset);
    const Vec3 way = view.eye - view.target;
    EXPECT_EQ(sign(way.x), GetParam().side.x);
    EXPECT_EQ(sign(way.y), GetParam().side.y);
    EXPECT_EQ(sign(way.z), GetParam().side.z);
    EXPECT_NEAR(std::hypot(way.x, way.y, way.z), 10.0, 1.0e-9);
    EXPECT_NEAR(way.x * view.up.x + way.y * view.up.y + way.z * view.up.z, 0.0, 1.0e-9);
    EXPECT_FALSE(view.perspective);
}

INSTANTIATE_TEST_SUITE_P(Presets, PresetViewsTest,
                         testing::Values(PresetCase{PresetView::Top, {0, 0, 1}},
                                         PresetCase{PresetView::Bottom, {0, 0, -1}},
                                         PresetCase{PresetView::Front, {0, -1, 0}},
                                         PresetCase{PresetView::Back, {0, 1, 0}},
                                         PresetCase{PresetView::Left, {-1, 0, 0}},
                                         PresetCase{PresetView::Right, {1, 0, 0}},
                                         PresetCase{PresetView::SouthWest, {-1, -1, 1}},
                                         PresetCase{PresetView::SouthEast, {1, -1, 1}},
                                         PresetCase{PresetView::NorthEast, {1, 1, 1}},
                                         PresetCase{PresetView::NorthWest, {-1, 1, 1}}));

}  // namespace
}  // namespace workbench::drawing
