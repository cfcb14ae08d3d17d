#include "workbench/drawing/records/layer_filters.h"

#include "workbench/drawing/database/database.h"
#include "workbench/drawing/records/current.h"
#include "workbench/drawing/records/entity.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/drawing/records/viewport.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

class LayerFiltersTest : public testing::Test {
protected:
    LayerFiltersTest() {
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

TEST_F(LayerFiltersTest, UsedLayersAreThoseWithSomethingOnThem) {
    const LayerFilters filters;
    const LayerFilter* used = findFilter(filters.root, "all used layers");
    ASSERT_NE(used, nullptr);
    EXPECT_TRUE(filterShows(*used, m_used, m_db));
    EXPECT_FALSE(filterShows(*used, m_empty, m_db));
    Writing<Entity>(m_db, m_entity).erase();
    EXPECT_FALSE(filterShows(*used, m_used, m_db));
    EXPECT_TRUE(filterShows(filters.root, m_empty, m_db));
}

TEST_F(LayerFiltersTest, GroupShowsItsListOnly) {
    LayerFilter group;
    group.kind = FilterKind::Group;
    group.layers = {m_empty};
    EXPECT_TRUE(filterShows(group, m_empty, m_db));
    EXPECT_FALSE(filterShows(group, m_used, m_db));
}

TEST_F(LayerFiltersTest, UnreadableExpressionShowsNothing) {
    LayerFilter filter;
    filter.expression = "NAME==";
    EXPECT_FALSE(filterShows(filter, m_used, m_db));
}

TEST_F(LayerFiltersTest, GeneratedFiltersAreTheDrawingsOwn) {
    const LayerFilters filters;
    EXPECT_TRUE(filters.root.isGenerated());
    EXPECT_TRUE(filters.root.children[0].isGenerated());
    EXPECT_FALSE(LayerFilter().isGenerated());
}

TEST_F(LayerFiltersTest, TreeComesBackAsItWasWritten) {
    LayerFilters filters;
    LayerFilter group;
    group.name = "Group";
    group.kind = FilterKind::Group;
    group.layers = {m_used};
    filters.root.children.push_back(group);
    LayerFilter again;
    fromValue(toValue(filters.root, m_db), again, m_db);
    EXPECT_EQ(again, filters.root);
}

TEST_F(LayerFiltersTest, NameThatStandsTwiceIsRefused) {
    LayerFilter filter;
    const Value twice =
        Value::Table{{"name", "All"}, {"children", Value::List{Value::Table{{"name", "ALL"}}}}};
    EXPECT_THROW(fromValue(twice, filter, m_db), ValueError);
    EXPECT_THROW(fromValue(Value::Table{{"kind", "group"}}, filter, m_db), ValueError);
    EXPECT_THROW(fromValue(Value::Table{{"name", "x"}, {"kind", "list"}}, filter, m_db),
                 ValueError);
}

TEST_F(LayerFiltersTest, NewAndOtherLookingLayersHaveFiltersOfTheirOwn) {
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

TEST_F(LayerFiltersTest, OnlyTheMissingFiltersOfTheDrawingAreAdded) {
    LayerFilters filters;
    filters.root.children.erase(filters.root.children.begin());
    filters.root.children.back().name = "By viewport";
    filters.addGenerated();
    ASSERT_EQ(filters.root.children.size(), 3U);
    EXPECT_EQ(filters.root.children[1].name, "By viewport");
    EXPECT_EQ(filters.root.children[2].name, "All Used Layers");
}

}  // namespace
}  // namespace workbench::drawing
