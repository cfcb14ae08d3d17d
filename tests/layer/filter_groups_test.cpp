#include "tests/layer/layer_filter_fixture.h"
#include "workbench/adapters/host_values.h"
#include "workbench/drawing/database/database.h"

#include <hostapi/zorq/layers.h>

namespace {

using workbench::Value;

/// Test fixture: beside it a line on each of Walls, Doors and Roof, in this order.
class FilterGroupTest : public LayerFilterTest {
protected:
    void SetUp() override {
        LayerFilterTest::SetUp();
        for (const char* layer : {"Walls", "Doors", "Roof"}) {
            setDb("entities.new",
                  Value::Table{{"type", "line"},
                               {"layer", layer},
                               {"points", Value::List{Value::List{0.0, 0.0, 0.0},
                                                      Value::List{1.0, 0.0, 0.0}}}});
        }
        takeJournal();
    }

    /// The IDs of the lines on the first layers.
    VxDbObjectIdArray lines(std::size_t count = 3) {
        VxDbObjectIdArray ids;
        const workbench::drawing::Database& data = bench().editor().documents().current()->data();
        for (const auto id : data.ids(workbench::drawing::RecordKind::Entity)) {
            if (ids.size() < count)
                ids.push_back(workbench::toHostId(id));
        }
        return ids;
    }
    Calls steps() {
        return takeCallLines({"vxdbOpenVxDbEntity", "VxLyLayerGroup::addLayerId",
                              "VxLyLayerGroup::removeLayerId", "VxLyLayerFilter::setName",
                              "VxLyLayerFilter::addNested", "VxLyLayerFilter::removeNested",
                              "VxLyLayerFilterManager::setFilters"});
    }
    static std::string nameOf(const std::string& call) { return call.substr(0, call.find('(')); }
    Calls stepNames() {
        Calls names;
        for (const std::string& call : steps())
            names.push_back(nameOf(call));
        return names;
    }
};

// Converting

TEST_F(FilterGroupTest, ConvertingPutsAGroupOfTheShownLayersInTheFiltersPlace) {
    EXPECT_EQ(manager().convertToGroup(L"house"), 1);
    EXPECT_EQ(stored("House", "kind"), Value("group"));
    EXPECT_EQ(layersOf("House"), (Texts{"Walls", "Doors"}));
    EXPECT_NE(dynamic_cast<VxLyLayerGroup*>(filter(L"House")), nullptr);
}

TEST_F(FilterGroupTest, ConvertingTakesItsStepsInThisOrder) {
    manager().convertToGroup(L"House");
    EXPECT_EQ(stepNames(),
              (Calls{"VxLyLayerGroup::addLayerId", "VxLyLayerGroup::addLayerId",
                     "VxLyLayerFilter::setName", "VxLyLayerFilter::addNested",
                     "VxLyLayerFilter::removeNested", "VxLyLayerFilterManager::setFilters"}));
}

TEST_F(FilterGroupTest, NestedFiltersGoOverInTheirOrder) {
    addGroup("First", {"Walls"}, "House");
    addGroup("Second", {"Doors"}, "House");
    refresh();
    EXPECT_EQ(manager().convertToGroup(L"House"), 1);
    EXPECT_EQ(stored("First", "parent"), Value("House"));
    const auto nested = filter(L"House")->nestedFilters();
    ASSERT_EQ(nested.size(), 2U);
    EXPECT_EQ(nested[0]->name(), L"First");
    EXPECT_EQ(nested[1]->name(), L"Second");
}

TEST_F(FilterGroupTest, ConvertedCurrentFilterStaysTheCurrentOne) {
    setDb("filters.current", "House");
    refresh();
    EXPECT_EQ(manager().convertToGroup(L"House"), 1);
    EXPECT_EQ(manager().current(), filter(L"House"));
    EXPECT_EQ(db("filters.current"), Value("House"));
}

TEST_F(FilterGroupTest, OtherCurrentFilterStaysTheCurrentOne) {
    setDb("filters.current", "Top");
    refresh();
    EXPECT_EQ(manager().convertToGroup(L"House"), 1);
    EXPECT_EQ(manager().current(), filter(L"Top"));
}

TEST_F(FilterGroupTest, ConvertingAGroupReportsSuccessAndChangesNothing) {
    EXPECT_EQ(manager().convertToGroup(L"Top"), 1);
    EXPECT_EQ(steps(), Calls{});
}

TEST_F(FilterGroupTest, ConvertingTheRootOrNothingFails) {
    EXPECT_EQ(manager().convertToGroup(manager().root()->name()), 0);
    EXPECT_EQ(manager().convertToGroup(L"Gone"), 0);
    EXPECT_EQ(steps(), Calls{});
}

TEST_F(FilterGroupTest, ConvertingWithoutADocumentFails) {
    closeDocument(L"A");
    EXPECT_EQ(manager().convertToGroup(L"House"), 0);
}

TEST_F(FilterGroupTest, WalkThatEndsEarlyStillConverts) {
    failAt("VxLyLayerGroup::addLayerId", 2);
    EXPECT_EQ(manager().convertToGroup(L"House"), 1);
    EXPECT_EQ(layersOf("House"), Texts{"Walls"});
}

struct ConvertFault {
    const char* call;
    int place;
};

class ConvertFaultTest : public FilterGroupTest,
                         public testing::WithParamInterface<ConvertFault> {};

TEST_P(ConvertFaultTest, FailsWithNothingStoredAndTheNextRefreshBringsAllBack) {
    addGroup("First", {"Walls"}, "House");
    addGroup("Second", {"Doors"}, "House");
    setDb("filters.current", "First");
    refresh();
    failAt(GetParam().call, GetParam().place);
    EXPECT_EQ(manager().convertToGroup(L"House"), 0);
    EXPECT_EQ(takeCallLines({"VxLyLayerFilterManager::setFilters"}), Calls{});
    manager().saveFilters();  // whatever is left is whole
    manager().refreshFilters();
    EXPECT_NE(manager().current(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Steps, ConvertFaultTest,
                         testing::Values(ConvertFault{"VxLyLayerGroup::new", 1},
                                         ConvertFault{"VxLyLayerFilter::removeNested", 1},
                                         ConvertFault{"VxLyLayerFilter::removeNested", 2},
                                         ConvertFault{"VxLyLayerFilter::removeNested", 3},
                                         ConvertFault{"VxLyLayerFilter::addNested", 1},
                                         ConvertFault{"VxLyLayerFilter::addNested", 2},
                                         ConvertFault{"VxLyLayerFilter::addNested", 3}));

TEST_F(FilterGroupTest, FailedConversionLosesWhatWasMoved) {
    addGroup("First", {"Walls"}, "House");
    addGroup("Second", {"Doors"}, "House");
    refresh();
    failAt("VxLyLayerFilter::addNested", 2);
    EXPECT_EQ(manager().convertToGroup(L"House"), 0);
    EXPECT_EQ(filter(L"First"), nullptr);
    EXPECT_EQ(filter(L"Second"), nullptr);
    EXPECT_NE(filter(L"House"), nullptr);
}

TEST_F(FilterGroupTest, CurrentFilterThatWasLostIsForgotten) {
    addGroup("First", {"Walls"}, "House");
    addGroup("Second", {"Doors"}, "House");
    setDb("filters.current", "First");
    refresh();
    failAt("VxLyLayerFilter::addNested", 2);
    manager().convertToGroup(L"House");
    EXPECT_EQ(manager().current(), nullptr);
}

TEST_F(FilterGroupTest, OnlyAPropertyFilterBelowTheHostsOwnCanBeConverted) {
    addProperty("Inner", R"(NAME=="Walls")", "House");
    refresh();
    EXPECT_TRUE(CVxDaLayerFilterMgr::canConvertToGroup(filter(L"House")));
    EXPECT_FALSE(CVxDaLayerFilterMgr::canConvertToGroup(filter(L"Top")));
    EXPECT_FALSE(CVxDaLayerFilterMgr::canConvertToGroup(filter(L"Inner")));
    EXPECT_FALSE(CVxDaLayerFilterMgr::canConvertToGroup(filter(L"All Used Layers")));
    EXPECT_FALSE(CVxDaLayerFilterMgr::canConvertToGroup(manager().root()));
}

TEST_F(FilterGroupTest, NestedFilterThatCannotBeMadeAnewForbidsConverting) {
    addGroup("Inner", {"Walls"}, "House");
    refresh();
    EXPECT_TRUE(CVxDaLayerFilterMgr::canConvertToGroup(filter(L"House")));
    fail("VxLyLayerFilter::regenerateNested", {}, 1);
    EXPECT_FALSE(CVxDaLayerFilterMgr::canConvertToGroup(filter(L"House")));
}

// Layers of picked entities

TEST_F(FilterGroupTest, PickedEntitiesBringTheirLayers) {
    EXPECT_EQ(manager().addSelectionToGroup(L"top", false, lines(2)), 1);
    EXPECT_EQ(layersOf("Top"), (Texts{"Roof", "Walls", "Doors"}));
}

TEST_F(FilterGroupTest, PickedEntitiesReplaceTheLayers) {
    EXPECT_EQ(manager().addSelectionToGroup(L"Top", true, lines(1)), 1);
    EXPECT_EQ(layersOf("Top"), Texts{"Walls"});
}

TEST_F(FilterGroupTest, NoEntitiesReplaceTheLayersByNone) {
    EXPECT_EQ(manager().addSelectionToGroup(L"Top", true, {}), 1);
    EXPECT_EQ(layersOf("Top"), Texts{});
}

TEST_F(FilterGroupTest, AddingHoldsALockFromBeginningToEnd) {
    manager().addSelectionToGroup(L"Top", true, lines(1));
    const Calls made = takeCallLines(
        {"VxAxDocLock::VxAxDocLock", "VxAxDocLock::~VxAxDocLock", "vxedGetInvertLayerFilterFlag",
         "vxdbOpenVxDbEntity", "VxLyLayerGroup::addLayerId", "VxLyLayerGroup::removeLayerId"});
    ASSERT_EQ(made.size(), 8U);
    EXPECT_EQ(made.front(), "VxAxDocLock::VxAxDocLock(object, 0)");
    EXPECT_EQ(made[1], "vxedGetInvertLayerFilterFlag()");
    EXPECT_EQ(nameOf(made[2]), "VxLyLayerGroup::removeLayerId");
    EXPECT_EQ(nameOf(made[3]), "vxdbOpenVxDbEntity");
    EXPECT_EQ(nameOf(made[4]), "VxLyLayerGroup::addLayerId");
    EXPECT_EQ(nameOf(made.back()), "VxAxDocLock::~VxAxDocLock");
}

TEST_F(FilterGroupTest, WithTheInvertFlagSetNothingIsAdded) {
    vxedSetInvertLayerFilterFlag(true);
    EXPECT_EQ(manager().addSelectionToGroup(L"Top", true, lines()), 0);
    EXPECT_EQ(steps(), Calls{});
    vxedSetInvertLayerFilterFlag(false);
}

TEST_F(FilterGroupTest, OnlyAGroupTakesLayers) {
    EXPECT_EQ(manager().addSelectionToGroup(L"House", false, lines()), 0);
    EXPECT_EQ(manager().addSelectionToGroup(L"Gone", false, lines()), 0);
    EXPECT_EQ(steps(), Calls{});
    closeDocument(L"A");
    takeJournal();
    EXPECT_EQ(manager().addSelectionToGroup(L"Top", false, {}), 0);
    EXPECT_EQ(takeCallLines({"VxAxDocLock::VxAxDocLock"}), Calls{});
}

TEST_F(FilterGroupTest, FailedRemovalKeepsTheEarlierOnesAndStoresNothing) {
    addGroup("All of it", {"Walls", "Doors", "Roof"});
    refresh();
    failAt("VxLyLayerGroup::removeLayerId", 2);
    EXPECT_EQ(manager().addSelectionToGroup(L"All of it", true, lines(1)), 0);
    auto* group = dynamic_cast<VxLyLayerGroup*>(filter(L"All of it"));
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(group->layerIds().size(), 2U);
    EXPECT_EQ(layersOf("All of it").size(), 3U);
}

TEST_F(FilterGroupTest, FailedEntityOrLayerEndsTheAddingUnstored) {
    failAt("vxdbOpenVxDbEntity", 2);
    EXPECT_EQ(manager().addSelectionToGroup(L"Top", false, lines()), 0);
    EXPECT_EQ(dynamic_cast<VxLyLayerGroup*>(filter(L"Top"))->layerIds().size(), 2U);
    failAt("VxLyLayerGroup::addLayerId", 1);
    EXPECT_EQ(manager().addSelectionToGroup(L"Top", false, lines()), 0);
    EXPECT_EQ(layersOf("Top"), Texts{"Roof"});
    EXPECT_EQ(bench().editor().documents().current()->openObjects().count(), 0U);
}

}  // namespace
