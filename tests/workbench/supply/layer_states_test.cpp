#include "tests/workbench/adapters/adapters_fixture.h"
#include "workbench/drawing/path_access.h"

#include <hostapi/vxdb18/layer_state_manager.h>

namespace workbench {

class LayerStateFunctionsTest : public AdaptersTest {
protected:
    LayerStateFunctionsTest() {
        set("layers.Walls", Value::Table{{"colour", 3}});
        run(L"_-layer\nstate\nsave\nMy plan\n\n\n");
        set("layers.Walls.colour", 5);
    }

    void set(const char* path, const Value& value) { drawing::setByPath(data(), path, value); }
    Value get(const char* path) { return drawing::getByPath(data(), path); }
    VxDbLayerStateManager states() { return VxDbLayerStateManager(m_document.database()); }
    void lockForWriting() { m_document.locks().lock(DocumentLocks::kWrite, this); }
    /// The viewport on the first layout, which is made the active one.
    VxDbObjectId enterLayout() {
        editor().set(L"TILEMODE", 0);
        return toHostId(drawing::findViewport(data(), drawing::activeLayout(data()), 2));
    }
};

TEST_F(LayerStateFunctionsTest, NamesThoseOfReferencedDrawingsOnlyWhenAsked) {
    set("states[\"Site|Summer\"]", Value::Table{});
    CStringArray names{L"old"};
    EXPECT_EQ(states().getLayerStateNames(names, false, true), Zorq::eOk);
    EXPECT_EQ(names, (CStringArray{L"My plan", L"Site|Summer"}));
    EXPECT_EQ(states().getLayerStateNames(names, false, false), Zorq::eOk);
    EXPECT_EQ(names, CStringArray{L"My plan"});
}

TEST_F(LayerStateFunctionsTest, TellsWhichStateWasRestoredLastAndWhetherItStillHolds) {
    VxString name = L"none";
    EXPECT_NE(states().getLastRestoredLayerState(name), Zorq::eOk);
    EXPECT_EQ(name, L"none");
    lockForWriting();
    EXPECT_FALSE(states().compareLayerStateToDb(L"My plan", {}));
    EXPECT_EQ(states().restoreLayerState(L"my PLAN", {}, 0, nullptr), Zorq::eOk);
    EXPECT_TRUE(states().compareLayerStateToDb(L"My plan", {}));
    EXPECT_EQ(states().getLastRestoredLayerState(name), Zorq::eOk);
    EXPECT_EQ(name, L"My plan");
    set("layers.Walls.colour", 4);
    EXPECT_EQ(states().getLastRestoredLayerState(name), Zorq::eOk);
    EXPECT_FALSE(states().compareLayerStateToDb(L"My plan", {}));
}

TEST_F(LayerStateFunctionsTest, FlagOneTurnsNewLayersOff) {
    lockForWriting();
    set("layers.New", Value::Table{});
    EXPECT_EQ(states().restoreLayerState(L"My plan", {}, 0, nullptr), Zorq::eOk);
    EXPECT_EQ(get("layers.New.on"), Value(true));
    EXPECT_EQ(states().restoreLayerState(L"My plan", {}, kRestoreTurnsNewLayersOff, nullptr),
              Zorq::eOk);
    EXPECT_EQ(get("layers.New.on"), Value(false));
}

TEST_F(LayerStateFunctionsTest, FlagFourRestoresInTheOneViewportOfALayout) {
    lockForWriting();
    const VxDbObjectId viewport = enterLayout();
    EXPECT_EQ(states().restoreLayerState(L"My plan", viewport, kRestoreAsOverrides, nullptr),
              Zorq::eOk);
    EXPECT_EQ(get("layers.Walls.colour"), Value(5));
    EXPECT_EQ(get("viewports.2.layerOverrides"),
              Value(Value::List{Value::Table{{"layer", "Walls"}, {"colour", 3}}}));
    EXPECT_TRUE(states().compareLayerStateToDb(L"My plan", viewport));
    EXPECT_FALSE(states().compareLayerStateToDb(L"My plan", {}));
}

TEST_F(LayerStateFunctionsTest, InModelSpaceFlagFourMakesNoDifference) {
    lockForWriting();
    const VxDbObjectId tile = toHostId(drawing::activeViewport(data()));
    EXPECT_EQ(states().restoreLayerState(L"My plan", tile, kRestoreAsOverrides, nullptr),
              Zorq::eOk);
    EXPECT_EQ(get("layers.Walls.colour"), Value(3));
}

TEST_F(LayerStateFunctionsTest, WhatCannotBeRestoredHasItsStatus) {
    EXPECT_EQ(states().restoreLayerState(L"My plan", {}, 0, nullptr),
              toHostStatus(drawing::Status::NotLocked));
    lockForWriting();
    EXPECT_EQ(states().restoreLayerState(L"Nobody", {}, 0, nullptr), 22);
    EXPECT_EQ(states().restoreLayerState(nullptr, {}, 0, nullptr), 22);
    EXPECT_EQ(VxDbLayerStateManager(nullptr).restoreLayerState(L"My plan", {}, 0, nullptr), 374);
    const int mask = 1;
    EXPECT_EQ(states().restoreLayerState(L"My plan", {}, 0, &mask), 2);
    m_bench.faults().fail("VxDbLayerStateManager::restoreLayerState", 162);
    EXPECT_EQ(states().restoreLayerState(L"My plan", {}, 0, nullptr), 162);
    EXPECT_EQ(get("layers.Walls.colour"), Value(5));
}

}  // namespace workbench
