#include "workbench/adapters/layer_filter_manager.h"

#include "tests/workbench/adapters/adapters_fixture.h"
#include "workbench/adapters/layer_filter_data.h"
#include "workbench/drawing/path_access.h"

#include <memory>

namespace workbench {

class LayerFilterManagerTest : public AdaptersTest {
protected:
    void set(const char* path, const Value& value) { drawing::setByPath(data(), path, value); }
    Value get(const char* path) { return drawing::getByPath(data(), path); }
    LayerFilterManager& manager() { return m_document.hostDatabase().filters(); }
    void read() {
        VxLyLayerFilter* root = nullptr;
        EXPECT_EQ(manager().getFilters(root, m_current), Zorq::eOk);
        m_root.reset(root);
    }
    VxLyLayerFilter* filter(const char* name) { return findFilterObject(*m_root, name); }
    void lockForWriting() { m_document.locks().lock(DocumentLocks::kWrite, this); }

    std::unique_ptr<VxLyLayerFilter> m_root;
    VxLyLayerFilter* m_current = nullptr;
};

TEST_F(LayerFilterManagerTest, HandsOutACopyOfTheTreeWithTheFilterInForce) {
    set("filters.Walls", Value::Table{{"expression", "NAME==\"W*\""}});
    set("filters.current", "Walls");
    read();
    EXPECT_EQ(m_root->name(), L"All");
    EXPECT_EQ(m_root->parent(), nullptr);
    ASSERT_EQ(m_root->nestedFilters().size(), 4U);
    EXPECT_EQ(m_root->nestedFilters()[2]->name(), L"Viewport Overrides");
    EXPECT_EQ(m_current, m_root->nestedFilters()[3]);
    EXPECT_EQ(m_current->parent(), m_root.get());
    m_current->setName(L"Partitions");
    EXPECT_EQ(get("filters.current"), Value("Walls"));
}

TEST_F(LayerFilterManagerTest, StoresATreeAsOneStepOfUndo) {
    set("filters.Walls", Value::Table{{"expression", "NAME==\"W*\""}});
    read();
    filter("Walls")->setName(L"Partitions");
    auto* group = new VxLyLayerGroup;
    group->setName(L"Group1");
    ASSERT_EQ(m_root->addNested(group), Zorq::eOk);
    EXPECT_EQ(manager().setFilters(m_root.get(), group), toHostStatus(drawing::Status::NotLocked));
    EXPECT_EQ(get("filters.current"), Value("All"));
    lockForWriting();
    const std::size_t steps = data().undoLog().undoCount();
    EXPECT_EQ(manager().setFilters(m_root.get(), group), Zorq::eOk);
    EXPECT_EQ(get("filters.current"), Value("Group1"));
    EXPECT_EQ(get("filters.Group1.kind"), Value("group"));
    EXPECT_EQ(get("filters.Partitions.expression"), Value("NAME==\"W*\""));
    EXPECT_EQ(data().undoLog().undoCount(), steps + 1);
    editor().undo();
    EXPECT_EQ(get("filters.current"), Value("All"));
    EXPECT_EQ(get("filters.Group1"), Value());
    EXPECT_EQ(get("filters.Walls.kind"), Value("property"));
}

TEST_F(LayerFilterManagerTest, ACurrentFilterOutsideOfTheTreeMakesTheRootCurrent) {
    set("filters.current", "All Used Layers");
    lockForWriting();
    read();
    VxLyLayerGroup stranger;
    EXPECT_EQ(manager().setFilters(m_root.get(), &stranger), Zorq::eOk);
    EXPECT_EQ(get("filters.current"), Value("All"));
    set("filters.current", "All Used Layers");
    EXPECT_EQ(manager().setFilters(m_root.get(), nullptr), Zorq::eOk);
    EXPECT_EQ(get("filters.current"), Value("All"));
}

TEST_F(LayerFilterManagerTest, ATreeThatNoDrawingCanHaveIsRefused) {
    lockForWriting();
    read();
    EXPECT_NE(manager().setFilters(nullptr, nullptr), Zorq::eOk);
    EXPECT_NE(manager().setFilters(filter("All Used Layers"), nullptr), Zorq::eOk);
    auto* group = new VxLyLayerGroup;
    m_root->addNested(group);
    EXPECT_EQ(manager().setFilters(m_root.get(), nullptr),
              toHostStatus(drawing::Status::InvalidName));
    group->setName(L"viewport overrides");
    EXPECT_EQ(manager().setFilters(m_root.get(), nullptr),
              toHostStatus(drawing::Status::DuplicateName));
    EXPECT_EQ(get("filters.count"), Value(4));
}

TEST_F(LayerFilterManagerTest, FaultsGiveTheirStatuses) {
    lockForWriting();
    read();
    VxLyLayerFilter* root = m_root.get();
    VxLyLayerFilter* current = m_current;
    m_bench.faults().fail("VxLyLayerFilterManager::getFilters", 61);
    EXPECT_EQ(manager().getFilters(root, current), 61);
    EXPECT_EQ(root, nullptr);
    EXPECT_EQ(current, nullptr);
    m_bench.faults().fail("VxLyLayerFilterManager::setFilters", 62);
    EXPECT_EQ(manager().setFilters(m_root.get(), nullptr), 62);
}

}  // namespace workbench
