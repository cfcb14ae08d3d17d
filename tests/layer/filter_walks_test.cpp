#include "layer/filter_prop_ops.h"
#include "tests/layer/layer_filter_fixture.h"

namespace {

using workbench::Value;

/// Test fixture: what entry points do to layers.
class FilterWalkTest : public LayerFilterTest {
protected:
    void setLayer(const std::string& layer, const std::string& property, bool on) {
        setDb("layers." + layer + "." + property, on);
    }
    /// The layers that are frozen in the viewport on show.
    Texts frozenHere() {
        Texts names;
        for (const Value& layer : db("viewports.current.frozenLayers").asList())
            names.push_back(layer.asString());
        return names;
    }
    /// Goes into a viewport of the first layout.
    void enterViewport() {
        set(L"TILEMODE", 0);
        type(L"MSPACE\n");
        takeJournal();
    }
    /// The group of all layers but the current one, and of it.
    void showAll() {
        addGroup("Everything", {"0", "Walls", "Doors", "Roof"});
        refresh();
    }
    std::size_t openCount() {
        return bench().editor().documents().current()->openObjects().count();
    }
};

// On and off

TEST_F(FilterWalkTest, TurnsTheLayersOfAFilterOffAndOn) {
    EXPECT_EQ(manager().setLayersOn(L"house", false), 1);
    EXPECT_EQ(layersThatAre("on"), (Texts{"0", "Roof"}));
    EXPECT_EQ(manager().setLayersOn(L"House", true), 1);
    EXPECT_EQ(layersThatAre("on"), (Texts{"0", "Walls", "Doors", "Roof"}));
    EXPECT_EQ(openCount(), 0U);
}

TEST_F(FilterWalkTest, CurrentLayerIsAskedForOnceAndStaysOnWithYes) {
    showAll();
    answer("box", "yes");
    EXPECT_EQ(manager().setLayersOn(L"Everything", false), 1);
    EXPECT_EQ(layersThatAre("on"), Texts{"0"});
    EXPECT_EQ(takeTexts("box"), Texts{workbench::toUtf8(
                                    L"The current layer is about to be turned off. Do you want to "
                                    L"keep it on?")});
}

TEST_F(FilterWalkTest, CurrentLayerGoesOffWithNo) {
    showAll();
    answer("box", "no");
    EXPECT_EQ(manager().setLayersOn(L"Everything", false), 1);
    EXPECT_EQ(layersThatAre("on"), Texts{});
    EXPECT_EQ(takeCallLines({"AfxMessageBox"}).size(), 1U);
    takeTexts("box");
}

TEST_F(FilterWalkTest, CurrentLayerIsNotAskedForWhereItWouldNotChange) {
    showAll();
    setLayer("0", "on", false);
    EXPECT_EQ(manager().setLayersOn(L"Everything", false), 1);
    EXPECT_EQ(manager().setLayersOn(L"Everything", true), 1);
    EXPECT_EQ(takeTexts("box"), Texts{});
}

TEST_F(FilterWalkTest, CurrentLayerIsAskedForAfterItsUpgrade) {
    addGroup("Zero", {"0"});
    refresh();
    answer("box", "no");
    manager().setLayersOn(L"Zero", false);
    EXPECT_EQ(takeCallLines({"VxDbObject::upgradeOpen", "AfxMessageBox",
                             "VxDbLayerTableRecord::setIsOff"})
                  .size(),
              3U);
    takeTexts("box");
    fail("VxDbObject::upgradeOpen", {}, 1);
    setLayer("0", "on", true);
    EXPECT_EQ(manager().setLayersOn(L"Zero", false), 0);
    EXPECT_EQ(takeTexts("box"), Texts{});
}

// Frozen and thawed

TEST_F(FilterWalkTest, FreezesAndThawsTheLayersOfAFilter) {
    EXPECT_EQ(manager().setLayersFrozen(L"House", true), 1);
    EXPECT_EQ(layersThatAre("frozen"), (Texts{"Walls", "Doors"}));
    EXPECT_EQ(manager().setLayersFrozen(L"House", false), 1);
    EXPECT_EQ(layersThatAre("frozen"), Texts{});
}

TEST_F(FilterWalkTest, CurrentLayerIsRefusedOnceAndTheOthersFrozen) {
    showAll();
    EXPECT_EQ(manager().setLayersFrozen(L"Everything", true), 1);
    EXPECT_EQ(layersThatAre("frozen"), (Texts{"Walls", "Doors", "Roof"}));
    EXPECT_EQ(takeTexts("box"), Texts{"The current layer cannot be frozen."});
}

TEST_F(FilterWalkTest, CurrentLayerIsRefusedBeforeAnyUpgrade) {
    addGroup("Zero", {"0"});
    refresh();
    manager().setLayersFrozen(L"Zero", true);
    EXPECT_EQ(takeCallLines({"VxDbObject::upgradeOpen"}), Calls{});
    takeTexts("box");
}

// Locked

TEST_F(FilterWalkTest, LocksAndUnlocksTheLayersOfAFilter) {
    showAll();
    EXPECT_EQ(manager().setLayersLocked(L"Everything", true), 1);
    EXPECT_EQ(layersThatAre("locked"), (Texts{"0", "Walls", "Doors", "Roof"}));
    EXPECT_EQ(manager().setLayersLocked(L"House", false), 1);
    EXPECT_EQ(layersThatAre("locked"), (Texts{"0", "Roof"}));
}

// In one viewport

TEST_F(FilterWalkTest, InModelSpaceNothingIsFrozenInAViewport) {
    EXPECT_EQ(manager().setLayersFrozenInViewport(L"House", true), 0);
    EXPECT_EQ(frozenHere(), Texts{});
    EXPECT_EQ(takeCallLines({"VxDbDatabase::getSymbolTable"}), Calls{});
}

TEST_F(FilterWalkTest, FreezesAndThawsInTheCurrentViewportAlone) {
    enterViewport();
    EXPECT_EQ(manager().setLayersFrozenInViewport(L"House", true), 1);
    EXPECT_EQ(frozenHere(), (Texts{"Walls", "Doors"}));
    EXPECT_EQ(layersThatAre("frozen"), Texts{});
    EXPECT_EQ(manager().setLayersFrozenInViewport(L"House", false), 1);
    EXPECT_EQ(frozenHere(), Texts{});
    EXPECT_EQ(openCount(), 0U);
}

TEST_F(FilterWalkTest, CurrentLayerIsNeverFrozenInAViewportAndNothingIsSaid) {
    showAll();
    enterViewport();
    EXPECT_EQ(manager().setLayersFrozenInViewport(L"Everything", true), 1);
    EXPECT_EQ(frozenHere(), (Texts{"Walls", "Doors", "Roof"}));
    EXPECT_EQ(takeTexts("box"), Texts{});
}

TEST_F(FilterWalkTest, ViewportThatCannotBeOpenedEndsTheFreezingAtTheFirstLayer) {
    enterViewport();
    failAt("vxdbOpenObject", 1);
    EXPECT_EQ(manager().setLayersFrozenInViewport(L"House", true), 0);
    EXPECT_EQ(frozenHere(), Texts{});
}

TEST_F(FilterWalkTest, WithoutAViewportFreezingEndsAtTheFirstLayer) {
    enterViewport();
    fail("vxedGetCurViewportObjectId", {}, 1);
    EXPECT_EQ(manager().setLayersFrozenInViewport(L"House", true), 0);
    EXPECT_EQ(frozenHere(), Texts{});
}

TEST_F(FilterWalkTest, WithoutACurrentLayerFreezingEndsAtTheFirstLayer) {
    enterViewport();
    fail("VxDbDatabase::clayer", {}, 1);
    EXPECT_EQ(manager().setLayersFrozenInViewport(L"House", true), 0);
    EXPECT_EQ(takeCallLines({"vxedGetCurViewportObjectId"}), Calls{});
}

TEST_F(FilterWalkTest, FailedFreezeEndsTheWalkWithTheEarlierLayersFrozen) {
    enterViewport();
    failAt("VxDbViewport::freezeLayersInViewport", 2);
    EXPECT_EQ(manager().setLayersFrozenInViewport(L"House", true), 0);
    EXPECT_EQ(frozenHere(), Texts{"Walls"});
}

// Isolated

TEST_F(FilterWalkTest, IsolatesInAllViewportsByFreezingTheOthers) {
    setLayer("Walls", "frozen", true);
    EXPECT_EQ(manager().isolateGroupAllViewports(L"House"), 1);
    EXPECT_EQ(layersThatAre("frozen"), (Texts{"Walls", "Roof"}))
        << "a frozen member stays frozen, the current layer thawed";
}

TEST_F(FilterWalkTest, IsolationInAllViewportsEndsWithoutACurrentLayer) {
    fail("VxDbDatabase::clayer", {}, 1);
    EXPECT_EQ(manager().isolateGroupAllViewports(L"House"), 0);
    EXPECT_EQ(layersThatAre("frozen"), Texts{});
}

TEST_F(FilterWalkTest, IsolatesInTheActiveViewport) {
    enterViewport();
    setLayer("Walls", "frozen", true);
    EXPECT_EQ(manager().isolateGroupActiveViewport(L"House"), 1);
    EXPECT_EQ(layersThatAre("frozen"), Texts{});
    EXPECT_EQ(frozenHere(), Texts{"Roof"});
    EXPECT_EQ(manager().isolateGroupActiveViewport(L"Top"), 1);
    EXPECT_EQ(frozenHere(), (Texts{"Walls", "Doors"}));
}

TEST_F(FilterWalkTest, CurrentLayerIsLeftAloneByBothIsolations) {
    addGroup("Zero", {"0"});
    refresh();
    enterViewport();
    manager().isolateGroupActiveViewport(L"House");
    manager().isolateGroupAllViewports(L"House");
    EXPECT_EQ(layersThatAre("frozen"), Texts{"Roof"});
    EXPECT_EQ(frozenHere(), Texts{"Roof"});
}

TEST_F(FilterWalkTest, IsolationWithoutTheViewportWalksOverAllAndDoesNothing) {
    enterViewport();
    failAt("vxdbOpenObject", 1);
    EXPECT_EQ(manager().isolateGroupActiveViewport(L"House"), 1);
    EXPECT_EQ(frozenHere(), Texts{});
    fail("vxedGetCurViewportObjectId", {}, 1);
    EXPECT_EQ(manager().isolateGroupActiveViewport(L"House"), 1);
    EXPECT_EQ(frozenHere(), Texts{});
}

TEST_F(FilterWalkTest, IsolationInAViewportWithoutACurrentLayerHasNoViewport) {
    enterViewport();
    fail("VxDbDatabase::clayer", {}, 1);
    EXPECT_EQ(manager().isolateGroupActiveViewport(L"House"), 1);
    EXPECT_EQ(frozenHere(), Texts{});
    EXPECT_EQ(takeCallLines({"vxedGetCurViewportObjectId"}), Calls{});
}

TEST_F(FilterWalkTest, IsolationInModelSpaceChangesNothing) {
    EXPECT_EQ(manager().isolateGroupActiveViewport(L"House"), 1);
    EXPECT_EQ(layersThatAre("frozen"), Texts{});
}

TEST_F(FilterWalkTest, MembersThatCannotBeThawedEndTheIsolation) {
    enterViewport();
    failAt("VxDbObject::upgradeOpen", 2);
    EXPECT_EQ(manager().isolateGroupActiveViewport(L"House"), 0);
    EXPECT_EQ(frozenHere(), Texts{});
    failAt("VxDbViewport::thawLayersInViewport", 1);
    EXPECT_EQ(manager().isolateGroupActiveViewport(L"House"), 0);
    failAt("VxDbViewport::freezeLayersInViewport", 1);
    EXPECT_EQ(manager().isolateGroupActiveViewport(L"House"), 0);
    EXPECT_EQ(frozenHere(), Texts{});
}

// All walks

using EntryPoint = int (*)(CVxDaLayerFilterMgr& manager, const std::wstring& name);

struct EntryCase {
    const char* name;
    EntryPoint run;
};
void PrintTo(const EntryCase& row, std::ostream* out) {
    *out << row.name;
}

const EntryCase kEntries[] = {
    {"on", [](CVxDaLayerFilterMgr& m, const std::wstring& n) { return m.setLayersOn(n, false); }},
    {"frozen",
     [](CVxDaLayerFilterMgr& m, const std::wstring& n) { return m.setLayersFrozen(n, true); }},
    {"locked",
     [](CVxDaLayerFilterMgr& m, const std::wstring& n) { return m.setLayersLocked(n, true); }},
    {"viewport",
     [](CVxDaLayerFilterMgr& m, const std::wstring& n) {
         return m.setLayersFrozenInViewport(n, true);
     }},
    {"isolated here",
     [](CVxDaLayerFilterMgr& m, const std::wstring& n) { return m.isolateGroupActiveViewport(n); }},
    {"isolated", [](CVxDaLayerFilterMgr& m,
                    const std::wstring& n) { return m.isolateGroupAllViewports(n); }},
};

class EntryPointTest : public FilterWalkTest, public testing::WithParamInterface<EntryCase> {};

TEST_P(EntryPointTest, NeedsAFilterAndADocument) {
    enterViewport();
    for (const wchar_t* name : {L"", L"Gone"})
        EXPECT_EQ(GetParam().run(manager(), name), 0);
    EXPECT_EQ(takeCallLines({"VxAxDocLock::VxAxDocLock", "VxDbDatabase::getSymbolTable"}), Calls{});
    fail("VxLyLayerFilterManager::getFilters", {}, 1);
    manager().refreshFilters();
    EXPECT_EQ(GetParam().run(manager(), L"House"), 0);
    manager().refreshFilters();
    closeDocument(L"A");
    takeJournal();
    EXPECT_EQ(GetParam().run(manager(), L"House"), 0);
    EXPECT_EQ(takeCallLines({"VxDbDatabase::getSymbolTable"}), Calls{});
}

TEST_P(EntryPointTest, HoldsALockFromBeginningToEnd) {
    enterViewport();
    EXPECT_EQ(GetParam().run(manager(), L"House"), 1);
    const Calls made = takeCallLines({"VxAxDocLock::VxAxDocLock", "VxAxDocLock::~VxAxDocLock",
                                      "VxDbDatabase::getSymbolTable"});
    ASSERT_EQ(made.size(), 3U);
    EXPECT_EQ(made[0], "VxAxDocLock::VxAxDocLock(object, 0)");
    EXPECT_EQ(made[2], "VxAxDocLock::~VxAxDocLock()");
}

TEST_P(EntryPointTest, EndsAtATableWalkOrLayerThatCannotBeHad) {
    enterViewport();
    const bool opensViewport = GetParam().name == std::string("viewport") ||
                               GetParam().name == std::string("isolated here");
    fail("VxDbDatabase::getSymbolTable", {}, 1);
    EXPECT_EQ(GetParam().run(manager(), L"House"), 0);
    fail("VxDbLayerTable::newIterator", {}, 1);
    EXPECT_EQ(GetParam().run(manager(), L"House"), 0);
    failAt("vxdbOpenObject", opensViewport ? 2 : 1);
    EXPECT_EQ(GetParam().run(manager(), L"House"), 0);
    EXPECT_EQ(openCount(), 0U);
    EXPECT_EQ(layersThatAre("frozen"), Texts{});
}

INSTANTIATE_TEST_SUITE_P(EntryPoints, EntryPointTest, testing::ValuesIn(kEntries));

TEST_F(FilterWalkTest, FailedUpgradeEndsTheWalkWithTheEarlierLayersChanged) {
    failAt("VxDbObject::upgradeOpen", 2);
    EXPECT_EQ(manager().setLayersOn(L"House", false), 0);
    EXPECT_EQ(layersThatAre("on"), (Texts{"0", "Doors", "Roof"}));
    failAt("VxDbObject::upgradeOpen", 2);
    EXPECT_EQ(manager().setLayersLocked(L"House", true), 0);
    EXPECT_EQ(layersThatAre("locked"), Texts{"Walls"});
    failAt("VxDbObject::upgradeOpen", 2);
    EXPECT_EQ(manager().setLayersFrozen(L"House", true), 0);
    EXPECT_EQ(layersThatAre("frozen"), Texts{"Walls"});
    EXPECT_EQ(openCount(), 0U);
}

TEST_F(FilterWalkTest, FailedFreezingOfALayerEndsTheWalk) {
    failAt("VxDbLayerTableRecord::setIsFrozen", 2);
    EXPECT_EQ(manager().setLayersFrozen(L"House", true), 0);
    EXPECT_EQ(layersThatAre("frozen"), Texts{"Walls"});
    failAt("VxDbLayerTableRecord::setIsFrozen", 1);
    EXPECT_EQ(manager().isolateGroupAllViewports(L"House"), 0);
}

TEST_F(FilterWalkTest, EmptyFilterWalksOverAllAndChangesNothing) {
    addGroup("Empty", {});
    refresh();
    EXPECT_EQ(manager().setLayersOn(L"Empty", false), 1);
    EXPECT_EQ(manager().setLayersFrozen(L"Empty", true), 1);
    EXPECT_EQ(manager().setLayersLocked(L"Empty", true), 1);
    EXPECT_EQ(takeCallLines({"VxDbObject::upgradeOpen"}), Calls{});
    EXPECT_EQ(layersThatAre("on").size(), 4U);
}

TEST_F(FilterWalkTest, LayersAreWalkedOverInTheHostsOrderAndClosedEach) {
    manager().setLayersLocked(L"House", true);
    EXPECT_EQ(takeCallLines({"VxDbLayerTable::newIterator", "VxDbSymbolTableIterator::start",
                             "VxDbSymbolTableIterator::step", "VxDbLayerTableRecord::setIsLocked"}),
              (Calls{"VxDbLayerTable::newIterator(true, true)",
                     "VxDbSymbolTableIterator::start(true, true)",
                     "VxDbSymbolTableIterator::step(true, true)",
                     "VxDbLayerTableRecord::setIsLocked(true)",
                     "VxDbSymbolTableIterator::step(true, true)",
                     "VxDbLayerTableRecord::setIsLocked(true)",
                     "VxDbSymbolTableIterator::step(true, true)",
                     "VxDbSymbolTableIterator::step(true, true)"}));
}

TEST_F(FilterWalkTest, WalkWithoutADatabaseIsNone) {
    class Counting final : public CVxDaLayerFilterMgr::VxDaFilterPropOp {
    public:
        using VxDaFilterPropOp::VxDaFilterPropOp;
        bool operator()(VxDbLayerTableRecord& /*layer*/) override {
            ++layers;
            return true;
        }
        int layers = 0;
    };
    Counting counting(*manager().root());
    EXPECT_EQ(CVxDaLayerFilterMgr::forEachLayer(nullptr, counting), 0);
    EXPECT_EQ(counting.layers, 0);
}

}  // namespace
