#include "workbench/desktop/drawing_view/camera.h"

#include <gtest/gtest.h>

namespace workbench::desktop {
namespace {

using drawing::ViewParameters;

constexpr QSizeF kPicture{200, 100};

/// From the south at the origin, up along Z: x goes to the right, z up.
ViewParameters fromSouth(bool perspective) {
    ViewParameters view;
    view.eye = {0, -10, 0};
    view.target = {0, 0, 0};
    view.up = {0, 0, 1};
    view.width = 20;
    view.height = 10;
    view.perspective = perspective;
    return view;
}

void expectNear(QPointF point, double x, double y) {
    EXPECT_NEAR(point.x(), x, 1e-9);
    EXPECT_NEAR(point.y(), y, 1e-9);
}

TEST(CameraTest, TheFieldFillsThePictureInBothProjections) {
    for (const bool perspective : {false, true}) {
        const Camera camera(fromSouth(perspective), kPicture);
        expectNear(camera.place({0, 0, 0}), 100, 50);
        expectNear(camera.place({10, 0, 0}), 200, 50);
        expectNear(camera.place({0, 0, 5}), 100, 0);
    }
}

TEST(CameraTest, TheWholeFieldShowsInAPictureOfAnotherShape) {
    const Camera camera(fromSouth(false), {100, 100});
    expectNear(camera.place({10, 0, 0}), 100, 50);
    expectNear(camera.place({0, 0, 5}), 50, 25);
}

TEST(CameraTest, OnlyInPerspectiveDistantThingsAreSmaller) {
    expectNear(Camera(fromSouth(false), kPicture).place({10, 10, 0}), 200, 50);
    expectNear(Camera(fromSouth(true), kPicture).place({10, 10, 0}), 150, 50);
}

TEST(CameraTest, DepthIsMeasuredAlongTheSight) {
    EXPECT_DOUBLE_EQ(Camera(fromSouth(true), kPicture).depthOf({3, 5, -7}), 15.0);
}

TEST(CameraTest, InPerspectiveWhatLiesBehindTheEyeIsCutOff) {
    const Camera camera(fromSouth(true), kPicture);
    const std::vector<Vec3> triangle{{0, 0, 0}, {1, 0, 0}, {0, -30, 0}};
    const std::vector<Vec3> cut = camera.beforeEye(triangle);
    EXPECT_EQ(cut.size(), 4U);
    for (const Vec3& corner : cut)
        EXPECT_GT(camera.depthOf(corner), 0.0);
    EXPECT_TRUE(camera.beforeEye({{0, -20, 0}, {1, -20, 0}, {0, -30, 0}}).empty());
    EXPECT_EQ(Camera(fromSouth(false), kPicture).beforeEye(triangle).size(), 3U);
}

TEST(CameraTest, LinesAreCutLikewise) {
    const Camera camera(fromSouth(true), kPicture);
    EXPECT_TRUE(camera.lineBeforeEye({0, -20, 0}, {0, -30, 0}).empty());
    const std::vector<Vec3> cut = camera.lineBeforeEye({0, 5, 0}, {0, -30, 0});
    ASSERT_EQ(cut.size(), 2U);
    EXPECT_EQ(cut[0], (Vec3{0, 5, 0}));
    EXPECT_GT(camera.depthOf(cut[1]), 0.0);
    EXPECT_EQ(camera.lineBeforeEye({0, -30, 0}, {0, 5, 0}).size(), 2U);
}

TEST(CameraTest, AnUpVectorAlongTheSightIsReplaced) {
    ViewParameters view = fromSouth(false);
    view.up = {0, 1, 0};
    const SightAxes axes = axesOf(view);
    EXPECT_NEAR(lengthOf(axes.right), 1.0, 1e-12);
    EXPECT_NEAR(dot(axes.right, axes.forward), 0.0, 1e-12);
    view.target = view.eye;
    EXPECT_NEAR(lengthOf(axesOf(view).right), 1.0, 1e-12);
}

TEST(CameraTest, TheWayToTheEyeIsTheSameForAllPointsOnlyInAParallelView) {
    EXPECT_EQ(Camera(fromSouth(true), kPicture).wayToEye({1, 2, 3}), (Vec3{-1, -12, -3}));
    EXPECT_EQ(Camera(fromSouth(false), kPicture).wayToEye({1, 2, 3}), (Vec3{0, -10, 0}));
    EXPECT_EQ(Camera(fromSouth(true), kPicture).distance(), 10.0);
}

TEST(CameraTest, APlaceOfThePictureIsAPointOfTheGround) {
    for (const bool perspective : {false, true}) {
        drawing::ViewParameters view;
        view.eye = {10, -20, 15};
        view.target = {1, 2, 3};
        view.up = {0, 0, 1};
        view.width = 40;
        view.height = 20;
        view.perspective = perspective;
        const Camera camera(view, {400, 200});
        const std::optional<Vec3> met = camera.pointOnGround({120, 150});
        ASSERT_TRUE(met.has_value());
        EXPECT_EQ(met->z, 0.0);
        EXPECT_NEAR(camera.place(*met).x(), 120, 1e-9);
        EXPECT_NEAR(camera.place(*met).y(), 150, 1e-9);
    }
}

TEST(CameraTest, AboveTheHorizonThereIsNoGround) {
    drawing::ViewParameters view;
    view.eye = {0, 0, 5};
    view.target = {10, 0, 5};
    view.up = {0, 0, 1};
    view.perspective = true;
    const Camera camera(view, {400, 200});
    EXPECT_FALSE(camera.pointOnGround({200, 50}).has_value());
    EXPECT_TRUE(camera.pointOnGround({200, 150}).has_value());
}

}  // namespace
}  // namespace workbench::desktop
