#include "workbench/drawing/layer_state_operations.h"

#include "workbench/drawing/drawing.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/path_access.h"
#include "workbench/drawing/records/layer.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

class LayerStateOperationsTest : public testing::Test {
protected:
    LayerStateOperationsTest() {
        set("layers.Walls", Value::Table{{"colour", 3}});
        set("layers.Notes", Value::Table{{"on", false}});
        m_state = saveLayerState(m_db, "Before", "", {}).id;
    }

    void set(const char* path, const Value& value) { setByPath(m_db, path, value); }
    Value get(const char* path) { return getByPath(m_db, path); }

    std::unique_ptr<Drawing> m_drawing = makeNewDrawing();
    Database& m_db = m_drawing->db;
    ObjectId m_state;
};

TEST_F(LayerStateOperationsTest, MatchesUntilALayerChanges) {
    EXPECT_TRUE(matchesLayerState(m_db, m_state, {}));
    set("layers.Walls.locked", true);
    EXPECT_FALSE(matchesLayerState(m_db, m_state, {}));
}

TEST_F(LayerStateOperationsTest, RestoringBringsAllBackAndIsOneUndo) {
    set("layers.Walls.colour", 5);
    set("layers.Notes.on", true);
    EXPECT_EQ(restoreLayerState(m_db, m_state, {}, UnknownLayers::Keep), Status::Ok);
    EXPECT_TRUE(matchesLayerState(m_db, m_state, {}));
    EXPECT_EQ(get("current.layerState"), Value("Before"));
    m_db.undoLog().undo();
    EXPECT_EQ(get("layers.Walls.colour"), Value(5));
    EXPECT_EQ(get("layers.Notes.on"), Value(true));
    EXPECT_EQ(get("current.layerState"), Value(""));
}

TEST_F(LayerStateOperationsTest, LayersTheStateDoesNotKnowStayOrGoOff) {
    set("layers.New", Value::Table{});
    restoreLayerState(m_db, m_state, {}, UnknownLayers::Keep);
    EXPECT_EQ(get("layers.New.on"), Value(true));
    restoreLayerState(m_db, m_state, {}, UnknownLayers::TurnOff);
    EXPECT_EQ(get("layers.New.on"), Value(false));
}

TEST_F(LayerStateOperationsTest, CurrentLayerIsNotFrozenByARestore) {
    set("layers.Walls.frozen", true);
    const ObjectId frozen = saveLayerState(m_db, "Frozen", "", {}).id;
    set("layers.Walls.frozen", false);
    set("current.layer", "Walls");
    EXPECT_EQ(restoreLayerState(m_db, frozen, {}, UnknownLayers::Keep), Status::Ok);
    EXPECT_EQ(get("layers.Walls.frozen"), Value(false));
}

TEST_F(LayerStateOperationsTest, FreezingInALayoutsViewportIsKeptToo) {
    set("current.tileMode", false);
    set("viewports.2", Value::Table{{"frozenLayers", Value::List{"Walls"}}});
    const ObjectId viewport = findViewport(m_db, activeLayout(m_db), 2);
    const ObjectId state = saveLayerState(m_db, "Plan", "", viewport).id;
    set("viewports.2.frozenLayers", Value::List{"Notes"});
    EXPECT_FALSE(matchesLayerState(m_db, state, viewport));
    EXPECT_TRUE(matchesLayerState(m_db, state, {}));
    restoreLayerState(m_db, state, viewport, UnknownLayers::Keep);
    EXPECT_EQ(get("viewports.2.frozenLayers"), Value(Value::List{"Walls"}));
}

TEST_F(LayerStateOperationsTest, GoneLayersAndGoneStates) {
    set("layers.Notes", Value());
    EXPECT_TRUE(matchesLayerState(m_db, m_state, {}));
    set("states.Before", Value());
    EXPECT_EQ(restoreLayerState(m_db, m_state, {}, UnknownLayers::Keep), Status::WasErased);
}

TEST_F(LayerStateOperationsTest, NamesAreNeededAndUnique) {
    EXPECT_EQ(saveLayerState(m_db, "", "", {}).status, Status::InvalidName);
    EXPECT_EQ(saveLayerState(m_db, "BEFORE", "", {}).status, Status::DuplicateName);
}

TEST_F(LayerStateOperationsTest, BusyLayerStopsTheRestore) {
    set("layers.Notes.on", true);
    const Reading<Layer> reader(m_db, m_db.find(RecordKind::Layer, "Notes"));
    EXPECT_EQ(restoreLayerState(m_db, m_state, {}, UnknownLayers::Keep), Status::WasOpenForRead);
}

TEST_F(LayerStateOperationsTest, AViewportCanLookAsSavedWithoutTheLayersBeingSo) {
    set("current.tileMode", false);
    const ObjectId viewport = findViewport(m_db, activeLayout(m_db), 2);
    set("layers.Walls.colour", 5);
    set("layers.Walls.locked", true);
    EXPECT_EQ(
        restoreLayerState(m_db, m_state, viewport, UnknownLayers::Keep, RestoredLook::OfViewport),
        Status::Ok);
    EXPECT_EQ(get("layers.Walls.colour"), Value(5));
    EXPECT_EQ(get("layers.Walls.locked"), Value(false));
    EXPECT_TRUE(matchesLayerState(m_db, m_state, viewport));
    EXPECT_FALSE(matchesLayerState(m_db, m_state, {}));
    const std::size_t steps = m_db.undoLog().undoCount();
    restoreLayerState(m_db, m_state, viewport, UnknownLayers::Keep);
    EXPECT_EQ(m_db.undoLog().undoCount(), steps);
    set("layers.Walls.on", false);
    restoreLayerState(m_db, m_state, viewport, UnknownLayers::Keep);
    EXPECT_EQ(get("layers.Walls.colour"), Value(3));
    EXPECT_EQ(get("viewports.2.layerOverrides"), Value(Value::List{}));
}

}  // namespace
}  // namespace workbench::drawing
