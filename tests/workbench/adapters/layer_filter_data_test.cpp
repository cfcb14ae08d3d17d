#include "workbench/adapters/layer_filter_data.h"

#include "workbench/host/workbench.h"

#include <gtest/gtest.h>

namespace workbench {

class LayerFilterDataTest : public testing::Test {
protected:
    LayerFilterDataTest() {
        drawing::LayerFilter group;
        group.name = "Group";
        group.kind = drawing::FilterKind::Group;
        drawing::LayerFilter outer;
        outer.name = "Outer";
        outer.children.push_back(group);
        m_filters.root.children.push_back(outer);
        m_root = makeFilterObjects(m_filters.root);
    }

    VxLyLayerFilter* object(const char* name) { return findFilterObject(*m_root, name); }

    Workbench m_bench{WorkbenchOptions{}};
    drawing::LayerFilters m_filters;
    std::unique_ptr<VxLyLayerFilter> m_root;
};

TEST_F(LayerFilterDataTest, ATreeOfObjectsIsTheTreeAgain) {
    EXPECT_EQ(filterOfObjects(*m_root), m_filters.root);
    EXPECT_NE(dynamic_cast<VxLyLayerGroup*>(object("group")), nullptr);
    EXPECT_EQ(dynamic_cast<VxLyLayerGroup*>(object("outer")), nullptr);
    EXPECT_EQ(object("Nobody"), nullptr);
}

TEST_F(LayerFilterDataTest, ATakenFilterIsPartOfTheTreeNoMore) {
    VxLyLayerFilter* group = object("Group");
    EXPECT_TRUE(isInTree(*m_root, group));
    EXPECT_EQ(takeNestedFilter(*m_root, group), nullptr);
    const std::unique_ptr<VxLyLayerFilter> taken = takeNestedFilter(*object("Outer"), group);
    EXPECT_EQ(taken.get(), group);
    EXPECT_FALSE(isInTree(*m_root, group));
    EXPECT_FALSE(isInTree(*m_root, nullptr));
}

TEST_F(LayerFilterDataTest, AFilterIsNestedOnceAndNotInItself) {
    using drawing::Status;
    VxLyLayerFilter* outer = object("Outer");
    EXPECT_NE(nestFilter(*m_root, object("Group")), Status::Ok);
    EXPECT_NE(nestFilter(*m_root, nullptr), Status::Ok);
    std::unique_ptr<VxLyLayerFilter> taken = takeNestedFilter(*m_root, outer);
    EXPECT_NE(nestFilter(*findFilterObject(*taken, "Group"), outer), Status::Ok);
    EXPECT_NE(nestFilter(*object("All Used Layers"), outer), Status::Ok);
    EXPECT_EQ(nestFilter(*m_root, taken.release()), Status::Ok);
    EXPECT_EQ(filterOfObjects(*m_root), m_filters.root);
}

}  // namespace workbench
