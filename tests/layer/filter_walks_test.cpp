#include "layer/filter_prop_ops.h"
#include "tests/layer/filter_walk_fixture.h"

#include <ostream>

namespace {

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
    {"viewport", [](CVxDaLayerFilterMgr& m,
                    const std::wstring& n) { return m.setLayersFrozenInViewport(n, true); }},
    {"isolated here",
     [](CVxDaLayerFilterMgr& m, const std::wstring& n) { return m.isolateGroupActiveViewport(n); }},
    {"isolated",
     [](CVxDaLayerFilterMgr& m, const std::wstring& n) { return m.isolateGroupAllViewports(n); }},
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
    const Calls made = takeCallLines(
        {"VxAxDocLock::VxAxDocLock", "VxAxDocLock::~VxAxDocLock", "VxDbDatabase::getSymbolTable"});
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
    EXPECT_EQ(
        takeCallLines({"VxDbLayerTable::newIterator", "VxDbSymbolTableIterator::start",
                       "VxDbSymbolTableIterator::step", "VxDbLayerTableRecord::setIsLocked"}),
        (Calls{
            "VxDbLayerTable::newIterator(true, true)", "VxDbSymbolTableIterator::start(true, true)",
            "VxDbSymbolTableIterator::step(true, true)", "VxDbLayerTableRecord::setIsLocked(true)",
            "VxDbSymbolTableIterator::step(true, true)", "VxDbLayerTableRecord::setIsLocked(true)",
            "VxDbSymbolTableIterator::step(true, true)",
            "VxDbSymbolTableIterator::step(true, true)"}));
}

TEST_F(FilterWalkTest, WalkWithoutADatabaseIsNone) {
    class Counting final : public CVxDaLayerFilterMgr::VxDaFilterPropOp {
    public:
        explicit Counting(const VxLyLayerFilter& filter) : VxDaFilterPropOp(filter) {}
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
