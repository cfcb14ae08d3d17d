#include "workbench/drawing/shown_layers.h"

#include "workbench/drawing/database/database.h"
#include "workbench/drawing/records/current.h"
#include "workbench/drawing/records/entity.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/drawing/records/viewport.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

class ShownLayersTest : public testing::Test {
protected:
    ShownLayersTest() {
        Layer layer;
        layer.name = "Used";
        m_used = m_db.add(layer).id;
        layer.name = "Empty";
        m_empty = m_db.add(layer).id;
        Entity entity;
        entity.layer = m_used;
        entity.points = {{0, 0, 0}, {1, 0, 0}};
        m_entity = m_db.add(entity).id;
    }

    Database m_db;
    ObjectId m_used;
    ObjectId m_empty;
    ObjectId m_entity;
};

TEST_F(ShownLayersTest, UsedLayersAreThoseWithSomethingOnThem) {
    const LayerFilters filters;
    const LayerFilter* used = findFilter(filters.root, "all used layers");
    ASSERT_NE(used, nullptr);
    EXPECT_TRUE(filterShows(*used, m_used, m_db));
    EXPECT_FALSE(filterShows(*used, m_empty, m_db));
    Writing<Entity>(m_db, m_entity).erase();
    EXPECT_FALSE(filterShows(*used, m_used, m_db));
    EXPECT_TRUE(filterShows(filters.root, m_empty, m_db));
}

TEST_F(ShownLayersTest, GroupShowsItsListOnly) {
    LayerFilter group;
    group.kind = FilterKind::Group;
    group.layers = {m_empty};
    EXPECT_TRUE(filterShows(group, m_empty, m_db));
    EXPECT_FALSE(filterShows(group, m_used, m_db));
}

TEST_F(ShownLayersTest, UnreadableExpressionShowsNothing) {
    LayerFilter filter;
    filter.expression = "NAME==";
    EXPECT_FALSE(filterShows(filter, m_used, m_db));
}

TEST_F(ShownLayersTest, NewAndOtherLookingLayersHaveFiltersOfTheirOwn) {
    const LayerFilters filters;
    const LayerFilter* fresh = findFilter(filters.root, "Unreconciled New Layers");
    const LayerFilter* other = findFilter(filters.root, "Viewport Overrides");
    ASSERT_NE(fresh, nullptr);
    ASSERT_NE(other, nullptr);
    EXPECT_FALSE(filterShows(*fresh, m_used, m_db));
    EXPECT_FALSE(filterShows(*other, m_used, m_db));
    Writing<Layer>(m_db, m_used)->reconciled = false;
    EXPECT_TRUE(filterShows(*fresh, m_used, m_db));
    EXPECT_FALSE(filterShows(*fresh, m_empty, m_db));
    Viewport viewport;
    viewport.layerOverrides = {LayerOverride{m_empty, Colour::byIndex(1), {}, {}, {}}};
    m_db.add(viewport);
    m_db.add(Current());
    EXPECT_TRUE(filterShows(*other, m_empty, m_db));
    EXPECT_FALSE(filterShows(*other, m_used, m_db));
}

}  // namespace
}  // namespace workbench::drawing
