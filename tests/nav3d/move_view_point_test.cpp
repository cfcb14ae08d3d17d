#include "nav3d/move_view_point.h"

#include <gtest/gtest.h>

namespace {

double product(const VxGeVector3d& left, const VxGeVector3d& right) {
    return left.x * right.x + left.y * right.y + left.z * right.z;
}

class UpVectorTest : public testing::TestWithParam<VxGePoint3d> {};

TEST_P(UpVectorTest, IsSquareToTheDirectionAndOfLengthOne) {
    const CameraPoints camera{GetParam(), {1.0, 2.0, 3.0}};
    const VxGeVector3d up = upVectorOf(camera);
    EXPECT_NEAR(product(up, camera.eye - camera.target), 0.0, 1.0e-9);
    EXPECT_NEAR(up.length(), 1.0, 1.0e-12);
}

INSTANTIATE_TEST_SUITE_P(Eyes, UpVectorTest,
                         testing::Values(VxGePoint3d{5.0, 2.0, 3.0}, VxGePoint3d{1.0, 2.0, 9.0},
                                         VxGePoint3d{-4.0, 7.0, 11.0},
                                         VxGePoint3d{1.001, 2.0, -50.0}));

}  // namespace
