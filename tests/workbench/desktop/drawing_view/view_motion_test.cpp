#include "workbench/desktop/drawing_view/view_motion.h"

#include "workbench/desktop/drawing_view/camera.h"

#include <gtest/gtest.h>

#include <cmath>

namespace workbench::desktop {
namespace {

using drawing::ViewParameters;

constexpr QSizeF kPicture{400, 200};

ViewParameters slanting(bool perspective = true) {
    ViewParameters view;
    view.eye = {10, -20, 15};
    view.target = {1, 2, 3};
    view.up = {0, 0, 1};
    view.width = 40;
    view.height = 20;
    view.perspective = perspective;
    return view;
}

TEST(ViewMotionTest, AnOrbitKeepsTargetDistanceAndField) {
    const ViewParameters before = slanting();
    const ViewParameters after = orbited(before, {37, -12}, kPicture);
    EXPECT_EQ(after.target, before.target);
    EXPECT_NEAR(drawing::distance(after.eye, after.target),
                drawing::distance(before.eye, before.target), 1e-9);
    EXPECT_EQ(after.width, before.width);
    EXPECT_NE(after.eye, before.eye);
    EXPECT_NEAR(axesOf(after).right.z, 0.0, 1e-9) << "the horizon is level";
}

TEST(ViewMotionTest, ADragOverTheWholeWidthIsAFullTurn) {
    const ViewParameters before = slanting();
    const ViewParameters after = orbited(before, {kPicture.width(), 0}, kPicture);
    EXPECT_NEAR(drawing::distance(after.eye, before.eye), 0.0, 1e-9);
}

TEST(ViewMotionTest, AnOrbitStopsShortOfThePoles) {
    for (const double way : {5000.0, -5000.0}) {
        const ViewParameters after = orbited(slanting(), {0, way}, kPicture);
        const Vec3 away = after.eye - after.target;
        EXPECT_GT(std::hypot(away.x, away.y), 0.0);
        EXPECT_EQ(away.z > 0, way > 0);
        EXPECT_NEAR(lengthOf(axesOf(after).right), 1.0, 1e-9);
    }
}

TEST(ViewMotionTest, AnOrbitFromStraightAboveKeepsThePicturesUp) {
    ViewParameters plan;
    plan.eye = {0, 0, 10};
    plan.target = {0, 0, 0};
    plan.up = {0, 1, 0};
    const ViewParameters after = orbited(plan, {0, -20}, kPicture);
    EXPECT_LT(after.eye.y, 0.0) << "the lower edge comes nearer";
    EXPECT_NEAR(after.eye.x, 0.0, 1e-9);
}

TEST(ViewMotionTest, APanKeepsWhatIsUnderTheMouseThere) {
    for (const bool perspective : {false, true}) {
        const ViewParameters before = slanting(perspective);
        const ViewParameters after = panned(before, {30, -20}, kPicture);
        const QPointF was = Camera(before, kPicture).place(before.target);
        const QPointF is = Camera(after, kPicture).place(before.target);
        EXPECT_NEAR(is.x() - was.x(), 30, 1e-9);
        EXPECT_NEAR(is.y() - was.y(), -20, 1e-9);
        EXPECT_NEAR(lengthOf((after.eye - after.target) - (before.eye - before.target)), 0, 1e-9);
    }
}

TEST(ViewMotionTest, AZoomScalesTheFieldAndBringsTheEyeCloserInPerspective) {
    const ViewParameters before = slanting();
    const ViewParameters closer = zoomed(before, 2);
    EXPECT_LT(closer.width, before.width);
    EXPECT_NEAR(closer.width / closer.height, before.width / before.height, 1e-12);
    EXPECT_NEAR(
        drawing::distance(closer.eye, closer.target) / drawing::distance(before.eye, before.target),
        closer.width / before.width, 1e-12);
    EXPECT_EQ(zoomed(slanting(false), 1).eye, before.eye);
    EXPECT_GT(zoomed(before, -1).width, before.width);
}

TEST(ViewMotionTest, AZoomNeverReachesTheTarget) {
    ViewParameters view = slanting();
    for (int i = 0; i < 1000; ++i)
        view = zoomed(view, 5);
    EXPECT_GT(view.width, 0.0);
    EXPECT_NE(view.eye, view.target);
    for (int i = 0; i < 1000; ++i)
        view = zoomed(view, -5);
    EXPECT_TRUE(std::isfinite(view.width));
    EXPECT_TRUE(std::isfinite(view.eye.x));
}

TEST(ViewMotionTest, AnOrbitFromStraightBelowKeepsThePicturesUp) {
    ViewParameters ceiling;
    ceiling.eye = {0, 0, -10};
    ceiling.target = {0, 0, 0};
    ceiling.up = {0, 1, 0};
    const ViewParameters after = orbited(ceiling, {0, 20}, kPicture);
    EXPECT_GT(after.eye.y, 0.0) << "the upper edge comes nearer";
    EXPECT_NEAR(after.eye.x, 0.0, 1e-9);
    EXPECT_GT(axesOf(after).up.y, 0.9);
}

TEST(ViewMotionTest, NoWayIsNoMotion) {
    ViewParameters leaning = slanting();
    leaning.up = {1, 1, 1};
    EXPECT_EQ(orbited(leaning, {0, 0}, kPicture), leaning);
    EXPECT_EQ(panned(leaning, {0, 0}, kPicture), leaning);
    EXPECT_EQ(zoomed(leaning, 0), leaning);
}

TEST(ViewMotionTest, WithoutAPictureNothingMoves) {
    EXPECT_EQ(orbited(slanting(), {5, 5}, {0, 100}), slanting());
    EXPECT_EQ(panned(slanting(), {5, 5}, {100, 0}), slanting());
}

TEST(ViewMotionTest, AZoomComesBackFromBeyondTheLimits) {
    ViewParameters tiny = slanting();
    tiny.width = tiny.height = 1e-8;
    EXPECT_EQ(zoomed(tiny, 1), tiny);
    EXPECT_GT(zoomed(tiny, -1).width, tiny.width);
    ViewParameters huge = slanting();
    huge.width = huge.height = 1e12;
    EXPECT_EQ(zoomed(huge, -1), huge);
    EXPECT_LT(zoomed(huge, 1).width, huge.width);
}

TEST(ViewMotionTest, FarFromTheOriginEyeAndTargetStayApart) {
    ViewParameters view = slanting();
    view.eye = {1e15, -20, 15};
    view.target = {1e15 + 1, -20, 15};
    for (int i = 0; i < 100; ++i) {
        view = zoomed(view, 1);
        EXPECT_NE(view.eye, view.target);
    }
    ViewParameters wide = slanting(false);
    wide.width = 1e20;
    wide.height = 1e20;
    wide = panned(wide, {1000, 700}, kPicture);
    EXPECT_NE(wide.eye, wide.target);
}

TEST(ViewMotionTest, ASwivelTurnsTheSightAndLeavesTheCameraWhereItIs) {
    const ViewParameters before = slanting();
    const ViewParameters after = swivelled(before, {20, 0}, kPicture);
    EXPECT_EQ(after.eye, before.eye);
    EXPECT_NEAR(drawing::distance(after.eye, after.target),
                drawing::distance(before.eye, before.target), 1e-9);
    const double was = Camera(before, kPicture).place(before.target).x();
    EXPECT_GT(Camera(after, kPicture).place(before.target).x(), was) << "it follows the mouse";
    EXPECT_NEAR(axesOf(after).right.z, 0.0, 1e-9);
}

TEST(ViewMotionTest, AWalkGoesForwardAtItsHeightAndAFlightWhereItLooks) {
    const ViewParameters before = slanting();
    const ViewParameters onFoot = walked(before, {0, -50}, kPicture, true);
    EXPECT_NEAR(onFoot.eye.z, before.eye.z, 1e-12);
    EXPECT_GT(onFoot.eye.y, before.eye.y) << "towards what it looks at";
    EXPECT_LT(onFoot.eye.x, before.eye.x);
    const ViewParameters inTheAir = walked(before, {0, -50}, kPicture, false);
    EXPECT_LT(inTheAir.eye.z, before.eye.z) << "it looks down";
    EXPECT_NEAR(lengthOf((inTheAir.eye - inTheAir.target) - (before.eye - before.target)), 0, 1e-9);
}

TEST(ViewMotionTest, AWalkTurnsToTheSideOfTheDrag) {
    const ViewParameters before = slanting();
    const ViewParameters after = walked(before, {30, 0}, kPicture, true);
    EXPECT_LT(Camera(after, kPicture).place(before.target).x(), 200) << "it went to the left";
}

}  // namespace
}  // namespace workbench::desktop
