#include "workbench/drawing/drawing_reader.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/path_access.h"
#include "workbench/drawing/records/entity.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

/// The example drawing that everything is tried on.
class HouseDrawing : public testing::Test {
protected:
    Value get(const char* path) { return getByPath(m_house->db, path); }

    std::unique_ptr<Drawing> m_house =
        readDrawing(std::string(PROJECT_SOURCE_ROOT) + "/examples/house.json");
};

TEST_F(HouseDrawing, HasSomethingOfEverything) {
    EXPECT_GE(get("layers.count").asInteger(), 12);
    EXPECT_EQ(get("views.count"), Value(4));
    EXPECT_EQ(get("visualstyles.count"), Value(6));
    EXPECT_EQ(get("layouts"), Value(Value::List{"Plan", "Presentation"}));
    EXPECT_GE(get("states.count").asInteger(), 3);
    EXPECT_EQ(get("textstyles.Titles.height"), Value(0.5));
    EXPECT_EQ(get("sun.on"), Value(true));
    EXPECT_EQ(get("geo.latitude"), Value(37.795));
    EXPECT_EQ(m_house->variables.at("LUNITS"), Value(2));
}

TEST_F(HouseDrawing, HasLayersInEveryState) {
    EXPECT_EQ(get("filters.Out of Reach.shows"),
              Value(Value::List{"Floor", "Ground", "Survey", "Dimensions", "Notes", "Furniture"}));
    EXPECT_EQ(get("layers.Floor.locked"), Value(true));
    EXPECT_EQ(get("layers.Dimensions.on"), Value(false));
    EXPECT_EQ(get("layers.Notes.frozen"), Value(true));
}

TEST_F(HouseDrawing, HasLockedAndFreeViewports) {
    EXPECT_EQ(get("layouts.Plan.viewports.2.locked"), Value(true));
    EXPECT_EQ(get("layouts.Plan.viewports.3.locked"), Value(false));
    EXPECT_EQ(get("viewports.current.appliedView"), Value("Garden"));
}

TEST_F(HouseDrawing, StandsOnItsGroundUnderItsRoof) {
    double top = 0.0;
    for (const ObjectId id : m_house->db.ids(RecordKind::Entity)) {
        const auto* entity = m_house->db.look<Entity>(id);
        EXPECT_EQ(facesOf(*entity).empty(), entity->type == EntityType::Line);
        for (const Polygon& face : facesOf(*entity)) {
            for (const Vec3& corner : face) {
                EXPECT_GE(corner.z, -0.05);
                top = std::max(top, corner.z);
            }
        }
    }
    EXPECT_GT(top, 6.5);
}

}  // namespace
}  // namespace workbench::drawing
