#include "workbench/desktop/drawing_view/view_fit.h"

#include "workbench/desktop/drawing_view/camera.h"

#include <gtest/gtest.h>

#include <QRectF>

namespace workbench::desktop {
namespace {

using drawing::ViewParameters;

constexpr QSizeF kPicture{400, 200};

Scene aLine() {
    Scene scene;
    scene.lines.push_back({{10, 0, 0}, {30, 0, 0}, {}});
    return scene;
}

ViewParameters farAway(bool perspective) {
    ViewParameters view;
    view.eye = {-500, -400, 300};
    view.target = {-490, -400, 295};
    view.up = {0, 0, 1};
    view.width = 4;
    view.height = 2;
    view.perspective = perspective;
    return view;
}

TEST(ViewFitTest, TheBallHoldsAllThatIsShown) {
    const Ball ball = ballAround(aLine());
    EXPECT_EQ(ball.middle, (Vec3{20, 0, 0}));
    EXPECT_DOUBLE_EQ(ball.radius, 10.0);
    EXPECT_EQ(ballAround({}).radius, 0.0);
}

TEST(ViewFitTest, AFittedViewShowsTheWholeBallFromTheSameSide) {
    for (const bool perspective : {false, true}) {
        const ViewParameters before = farAway(perspective);
        const ViewParameters after = fitted(before, ballAround(aLine()), kPicture);
        const Camera camera(after, kPicture);
        for (const Vec3& end : {Vec3{10, 0, 0}, Vec3{30, 0, 0}}) {
            ASSERT_GT(camera.depthOf(end), 0.0);
            EXPECT_TRUE(QRectF(QPointF(), kPicture).contains(camera.place(end)));
        }
        EXPECT_NEAR(lengthOf(unit(after.eye - after.target) - unit(before.eye - before.target)),
                    0.0, 1e-9);
        EXPECT_NEAR(after.width / after.height, 2.0, 1e-9);
    }
}

TEST(ViewFitTest, AnEmptyDrawingLeavesTheViewAsItIs) {
    EXPECT_EQ(fitted(farAway(false), {}, kPicture), farAway(false));
}

TEST(ViewFitTest, AZoomEndsWhereNothingCouldBeToldAndMayComeBackFromThere) {
    const Ball ball = ballAround(aLine());
    ViewParameters close = farAway(false);
    close.width = 0.0009;
    ViewParameters closer = close;
    closer.width = 0.0008;
    EXPECT_FALSE(isZoomInReason(close, closer, ball));
    EXPECT_TRUE(isZoomInReason(closer, close, ball));
    ViewParameters wide = farAway(false);
    wide.width = 1000;
    ViewParameters wider = wide;
    wider.width = 1100;
    EXPECT_FALSE(isZoomInReason(wide, wider, ball));
    EXPECT_TRUE(isZoomInReason(wider, wide, ball));
    EXPECT_TRUE(isZoomInReason(wide, wider, {})) << "nothing to measure by";
}

}  // namespace
}  // namespace workbench::desktop
