#include "workbench/drawing/records/layer_filters.h"

#include "workbench/drawing/database/database.h"
#include "workbench/drawing/records/layer.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

class LayerFiltersTest : public testing::Test {
protected:
    LayerFiltersTest() {
        Layer layer;
        layer.name = "Walls";
        m_walls = m_db.add(layer).id;
    }

    Database m_db;
    ObjectId m_walls;
};

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
    group.layers = {m_walls};
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
