#include "tests/workbench/adapters/adapters_fixture.h"
#include "workbench/drawing/path_access.h"
#include "workbench/drawing/records/layer.h"

#include <hostapi/vxly.h>

#include <memory>

namespace workbench {

class LayerFilterFunctionsTest : public AdaptersTest {
protected:
    LayerFilterFunctionsTest() {
        set("layers.Walls", Value::Table{{"reconciled", false}});
        set("layers.Roof", Value::Table{});
        set("filters.W", Value::Table{{"expression", "NAME==\"W*\""}});
        set("filters.Top", Value::Table{{"kind", "group"}, {"layers", Value::List{"Roof"}}});
        VxLyLayerFilter* root = nullptr;
        VxLyLayerFilter* current = nullptr;
        VxLyLayerFilterManager* manager = vxlyGetLayerFilterManager(m_document.database());
        EXPECT_EQ(manager->getFilters(root, current), Zorq::eOk);
        m_root.reset(root);
    }

    void set(const char* path, const Value& value) { drawing::setByPath(data(), path, value); }
    VxLyLayerFilter& filter(const wchar_t* name) {
        for (VxLyLayerFilter* nested : m_root->nestedFilters()) {
            if (nested->name() == name)
                return *nested;
        }
        return *m_root;
    }
    VxDbObjectId layer(const char* name) {
        return toHostId(data().find(drawing::RecordKind::Layer, name));
    }
    bool contains(const VxLyLayerFilter& filter, const char* name) {
        auto* record = openAs<VxDbLayerTableRecord>(fromHostId(layer(name)));
        const bool contained = filter.contains(record);
        record->close();
        return contained;
    }
    int image(const VxLyLayerFilter& filter) {
        HIMAGELIST list = reinterpret_cast<HIMAGELIST>(this);
        int normal = -1;
        int selected = -1;
        EXPECT_TRUE(filter.getImages(list, normal, selected));
        EXPECT_EQ(list, nullptr);
        EXPECT_EQ(normal, selected);
        return normal;
    }

    std::unique_ptr<VxLyLayerFilter> m_root;
};

TEST_F(LayerFilterFunctionsTest, EachKindHasItsPictureAndItsRights) {
    struct Row {
        VxLyLayerFilter& filter;
        int image;
        bool own;     // the drawing's
        bool nested;  // filters may be nested in it
        bool ids;
    };
    const Row rows[] = {
        {*m_root, 0, true, true, false},
        {filter(L"W"), 1, false, true, false},
        {filter(L"Top"), 2, false, true, true},
        {filter(L"All Used Layers"), 0, true, false, false},
        {filter(L"Unreconciled New Layers"), 4, true, false, false},
        {filter(L"Viewport Overrides"), 3, true, false, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(toUtf8(row.filter.name()));
        EXPECT_EQ(image(row.filter), row.image);
        EXPECT_EQ(row.filter.dynamicallyGenerated(), row.own);
        EXPECT_EQ(row.filter.allowRename(), !row.own);
        EXPECT_EQ(row.filter.allowDelete(), !row.own);
        EXPECT_EQ(row.filter.allowNested(), row.nested);
        EXPECT_EQ(row.filter.isIdFilter(), row.ids);
        EXPECT_EQ(row.filter.regenerateNested(), Zorq::eOk);
    }
}

TEST_F(LayerFilterFunctionsTest, AFilterContainsTheLayersThatItShows) {
    EXPECT_TRUE(contains(*m_root, "0"));
    EXPECT_TRUE(contains(filter(L"W"), "Walls"));
    EXPECT_FALSE(contains(filter(L"W"), "Roof"));
    EXPECT_TRUE(contains(filter(L"Top"), "Roof"));
    EXPECT_TRUE(contains(filter(L"Unreconciled New Layers"), "Walls"));
    EXPECT_FALSE(contains(filter(L"Unreconciled New Layers"), "Roof"));
    EXPECT_FALSE(contains(filter(L"Viewport Overrides"), "Roof"));
    EXPECT_FALSE(m_root->contains(nullptr));
}

TEST_F(LayerFilterFunctionsTest, AGroupKeepsItsLayersInTheOrderInWhichTheyCame) {
    auto& group = static_cast<VxLyLayerGroup&>(filter(L"Top"));
    EXPECT_EQ(group.addLayerId(layer("Walls")), Zorq::eOk);
    EXPECT_EQ(group.addLayerId(layer("Roof")), Zorq::eOk);
    EXPECT_EQ(group.layerIds(), (VxDbObjectIdArray{layer("Roof"), layer("Walls")}));
    EXPECT_EQ(group.removeLayerId(layer("Roof")), Zorq::eOk);
    EXPECT_NE(group.removeLayerId(layer("Roof")), Zorq::eOk);
    EXPECT_NE(group.addLayerId({}), Zorq::eOk);
    EXPECT_NE(group.addLayerId(toHostId(firstLayout())), Zorq::eOk);
    m_bench.faults().fail("VxLyLayerGroup::addLayerId", 51);
    EXPECT_EQ(group.addLayerId(layer("0")), 51);
    EXPECT_EQ(group.layerIds(), VxDbObjectIdArray{layer("Walls")});
}

TEST_F(LayerFilterFunctionsTest, ATakenFilterIsTheCallersAndCanBeNestedElsewhere) {
    VxLyLayerFilter& top = filter(L"Top");
    VxLyLayerFilter& walls = filter(L"W");
    EXPECT_NE(walls.removeNested(&top), Zorq::eOk);
    EXPECT_EQ(m_root->removeNested(&top), Zorq::eOk);
    EXPECT_EQ(top.parent(), nullptr);
    m_bench.faults().fail("VxLyLayerFilter::addNested", 52, 1);
    EXPECT_EQ(walls.addNested(&top), 52);
    EXPECT_EQ(walls.addNested(&top), Zorq::eOk);
    EXPECT_EQ(top.parent(), &walls);
    EXPECT_EQ(walls.nestedFilters(), VxLyLayerFilterArray{&top});
}

TEST_F(LayerFilterFunctionsTest, OnlyWhatIsNotTheDrawingsOwnIsRenamed) {
    EXPECT_EQ(filter(L"W").setName(L"Walls"), Zorq::eOk);
    EXPECT_NE(m_root->setName(L"Everything"), Zorq::eOk);
    EXPECT_EQ(m_root->name(), L"All");
}

TEST_F(LayerFilterFunctionsTest, AModuleIsToldThatThereIsNoRoomForAGroup) {
    m_bench.faults().fail("VxLyLayerGroup::new", {}, 1);
    EXPECT_EQ(new VxLyLayerGroup, nullptr);
    const std::unique_ptr<VxLyLayerGroup> group(new VxLyLayerGroup);
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(group->name(), L"");
    EXPECT_TRUE(group->layerIds().empty());
}

TEST_F(LayerFilterFunctionsTest, OnlyADrawingThatIsOpenHasFilters) {
    EXPECT_NE(vxlyGetLayerFilterManager(m_document.database()), nullptr);
    EXPECT_EQ(vxlyGetLayerFilterManager(nullptr), nullptr);
    m_bench.faults().fail("vxlyGetLayerFilterManager");
    EXPECT_EQ(vxlyGetLayerFilterManager(m_document.database()), nullptr);
}

}  // namespace workbench
