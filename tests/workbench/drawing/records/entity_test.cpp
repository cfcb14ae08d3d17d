#include "workbench/drawing/records/entity.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace workbench::drawing {
namespace {

const std::vector<Vec3> kSquare{{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}};

double highest(const std::vector<Polygon>& faces) {
    double top = 0.0;
    for (const Polygon& face : faces) {
        for (const Vec3& corner : face) {
            top = std::max(top, corner.z);
        }
    }
    return top;
}

Vec3 normalOf(const Polygon& face) {
    const Vec3 a = face[1] - face[0];
    const Vec3 b = face[2] - face[0];
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

/// True if every face turns its front away from a point inside.
bool facesOutwards(const std::vector<Polygon>& faces, const Vec3& inside) {
    return std::all_of(faces.begin(), faces.end(), [&inside](const Polygon& face) {
        const Vec3 normal = normalOf(face);
        const Vec3 out = face[0] - inside;
        return normal.x * out.x + normal.y * out.y + normal.z * out.z > 0.0;
    });
}

TEST(Entity, PrismHasBaseTopAndSides) {
    Entity prism;
    prism.type = EntityType::Prism;
    prism.points = kSquare;
    prism.height = 3.0;
    EXPECT_EQ(facesOf(prism).size(), 6U);
    EXPECT_EQ(highest(facesOf(prism)), 3.0);
    EXPECT_TRUE(facesOutwards(facesOf(prism), {1, 1, 1}));
}

TEST(Entity, PyramidEndsInAnApexAboveItsMiddle) {
    Entity pyramid;
    pyramid.type = EntityType::Pyramid;
    pyramid.points = kSquare;
    pyramid.height = 4.0;
    const auto faces = facesOf(pyramid);
    ASSERT_EQ(faces.size(), 5U);
    EXPECT_EQ(faces[1].back(), (Vec3{1, 1, 4}));
    EXPECT_TRUE(facesOutwards(faces, {1, 1, 1}));
}

TEST(Entity, GablesRidgeRunsAlongTheLongerSide) {
    Entity gable;
    gable.type = EntityType::Gable;
    gable.points = {{0, 0, 0}};
    gable.size = {4, 2, 1};
    EXPECT_EQ(facesOf(gable)[1][2], (Vec3{4, 1, 1}));
    EXPECT_TRUE(facesOutwards(facesOf(gable), {2, 1, 0.2}));
    gable.size = {2, 4, 1};
    EXPECT_EQ(facesOf(gable)[1][2], (Vec3{1, 0, 1}));
    EXPECT_TRUE(facesOutwards(facesOf(gable), {1, 2, 0.2}));
}

TEST(Entity, BoxLiesAlongTheAxes) {
    Entity box;
    box.type = EntityType::Box;
    box.points = {{1, 1, 1}};
    box.size = {2, 3, 4};
    EXPECT_EQ(facesOf(box).size(), 6U);
    EXPECT_EQ(highest(facesOf(box)), 5.0);
    EXPECT_TRUE(facesOutwards(facesOf(box), {2, 2, 2}));
}

TEST(Entity, LineHasNoFaces) {
    Entity line;
    line.points = {{0, 0, 0}, {1, 1, 1}};
    EXPECT_TRUE(facesOf(line).empty());
}

TEST(Entity, FormNeedsItsPointsAndALayer) {
    Entity entity;
    EXPECT_EQ(entityProblem(entity), "an entity needs a layer");
    entity.layer = ObjectId(1, 1);
    EXPECT_EQ(entityProblem(entity), "a line needs at least 2 points, got 0");
    entity.type = EntityType::Box;
    entity.points = kSquare;
    EXPECT_EQ(entityProblem(entity), "a box needs 1 point, got 4");
    entity.points.resize(1);
    EXPECT_EQ(entityProblem(entity), "");
}

}  // namespace
}  // namespace workbench::drawing
