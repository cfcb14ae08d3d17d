#include <hostapi/vxge18.h>

#include <gtest/gtest.h>

namespace {

double product(const VxGeVector3d& left, const VxGeVector3d& right) {
    return left.x * right.x + left.y * right.y + left.z * right.z;
}

TEST(Geometry, PerpendicularVectorIsSquareToEveryDirection) {
    for (const VxGeVector3d& direction :
         {VxGeVector3d{1, 0, 0}, VxGeVector3d{0, 0, 2}, VxGeVector3d{1, 2, 3},
          VxGeVector3d{1.0e-3, 0, -5}, VxGeVector3d{0, -1, 0.5}}) {
        const VxGeVector3d side = direction.perpVector();
        EXPECT_GT(side.length(), 0.0);
        EXPECT_NEAR(product(direction, side), 0.0, 1.0e-12);
    }
}

TEST(Geometry, CrossProductIsRightHanded) {
    const VxGeVector3d z = VxGeVector3d{1, 0, 0}.crossProduct({0, 1, 0});
    EXPECT_EQ(z.z, 1.0);
    EXPECT_EQ(z.x, 0.0);
}

TEST(Geometry, NullVectorStaysAsItIs) {
    VxGeVector3d tiny{1.0e-12, 0, 0};
    EXPECT_EQ(tiny.normalize().x, 1.0e-12);
    VxGeVector3d three{0, 3, 0};
    EXPECT_EQ(three.normalize().y, 1.0);
}

TEST(Geometry, PointsWithinTheToleranceAreEqual) {
    const VxGePoint3d point{1, 2, 3};
    EXPECT_TRUE(point.isEqualTo({1, 2, 3 + 1.0e-11}));
    EXPECT_FALSE(point.isEqualTo({1, 2, 3 + 1.0e-9}));
}

}  // namespace
