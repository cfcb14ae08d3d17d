#include "workbench/desktop/drawing_view/paint_order.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace workbench::desktop {
namespace {

constexpr QSizeF kPicture{400, 400};

/// From the south, 100 away, a little from above.
drawing::ViewParameters fromSouth(bool perspective) {
    drawing::ViewParameters view;
    view.eye = {0, -100, 20};
    view.target = {0, 0, 0};
    view.up = {0, 0, 1};
    view.width = 100;
    view.height = 100;
    view.perspective = perspective;
    return view;
}

class PaintOrderTest : public testing::TestWithParam<bool> {
protected:
    std::size_t add(std::vector<Vec3> corners, const Vec3& normal = {}) {
        QPolygonF outline;
        for (const Vec3& corner : corners)
            outline.append(m_camera.place(corner));
        m_shapes.push_back({std::move(corners), normal, outline});
        return m_shapes.size() - 1;
    }
    /// An upright square that faces the eye.
    std::size_t addWall(double y, double size = 10) {
        return add({{-size, y, -size}, {size, y, -size}, {size, y, size}, {-size, y, size}},
                   {0, -1, 0});
    }
    std::size_t addGround(double z, double south, double north) {
        return add({{-50, south, z}, {50, south, z}, {50, north, z}, {-50, north, z}}, {0, 0, 1});
    }
    bool covers(std::size_t near, std::size_t far) {
        const std::vector<std::size_t> order = paintOrder(m_shapes, m_camera);
        EXPECT_EQ(order.size(), m_shapes.size());
        return std::find(order.begin(), order.end(), near) >
               std::find(order.begin(), order.end(), far);
    }

    Camera m_camera{fromSouth(GetParam()), kPicture};
    std::vector<PlacedShape> m_shapes;
};

TEST_P(PaintOrderTest, NothingHasNoOrder) {
    EXPECT_TRUE(paintOrder({}, m_camera).empty());
}

TEST_P(PaintOrderTest, TheNearerOfTwoWallsCoversTheOther) {
    const std::size_t near = addWall(-5);
    const std::size_t far = addWall(5);
    const std::size_t nearest = addWall(-9);
    EXPECT_TRUE(covers(near, far));
    EXPECT_TRUE(covers(nearest, near));
}

TEST_P(PaintOrderTest, AWallStandsOnGroundWhoseMiddleIsNearer) {
    const std::size_t wall = addWall(20);
    const std::size_t ground = addGround(-10, -80, 40);
    EXPECT_TRUE(covers(wall, ground));
}

TEST_P(PaintOrderTest, AnEaveCoversTheWallThatIsNearerThanTheRoofsMiddle) {
    const std::size_t wall = addWall(-10, 5);
    const std::size_t roof =
        add({{-20, -15, 5}, {20, -15, 5}, {20, 40, 9}, {-20, 40, 9}}, unit({0, -4, 55}));
    EXPECT_TRUE(covers(roof, wall));
}

TEST_P(PaintOrderTest, AChainOfShapesIsFollowedToItsEnd) {
    const std::size_t ground = addGround(-10, -80, 90);
    const std::size_t wall = addWall(60);
    const std::size_t sheet = addWall(59, 60);
    EXPECT_TRUE(covers(wall, ground));
    EXPECT_TRUE(covers(sheet, wall));
    EXPECT_TRUE(covers(sheet, ground));
}

TEST_P(PaintOrderTest, ALineDrawnOnAFaceIsSeenOnIt) {
    const std::size_t line = add({{-5, 60, 0}, {5, 60, 0}});
    const std::size_t ground = addGround(0, -80, 80);
    const std::size_t lineBelow = add({{-5, -60, -3}, {5, -60, -3}});
    EXPECT_TRUE(covers(line, ground));
    EXPECT_TRUE(covers(ground, lineBelow));
}

TEST_P(PaintOrderTest, ShapesInARingAreAllPaintedOnce) {
    // Three planks, each with its right end on the next one's left end.
    const double turn = 2.0943951023931953;
    for (int i = 0; i < 3; ++i) {
        const auto point = [&](double along, double across, double y) {
            const Vec3 flat = turned({along, 0, across}, {0, -1, 0}, turn * i);
            return Vec3{flat.x, y, flat.z};
        };
        add({point(-20, 8, 4), point(20, 8, -4), point(20, 12, -4), point(-20, 12, 4)},
            turned(unit({-8, -40, 0}), {0, -1, 0}, turn * i));
    }
    std::vector<std::size_t> order = paintOrder(m_shapes, m_camera);
    std::sort(order.begin(), order.end());
    EXPECT_EQ(order, (std::vector<std::size_t>{0, 1, 2}));
}

TEST_P(PaintOrderTest, WithTooManyOverEachOtherTheDepthOfTheirMiddlesCounts) {
    const std::size_t wall = addWall(20);
    const std::size_t ground = addGround(-10, -80, 40);
    EXPECT_TRUE(covers(wall, ground));
    for (int i = 0; i < 1000; ++i)
        addWall(30 + i * 0.01);
    EXPECT_FALSE(covers(wall, ground));
}

INSTANTIATE_TEST_SUITE_P(Projections, PaintOrderTest, testing::Bool(),
                         [](const testing::TestParamInfo<bool>& projection) {
                             return projection.param ? "Perspective" : "Parallel";
                         });

}  // namespace
}  // namespace workbench::desktop
