#include "workbench/commands/layer_command.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/path_access.h"
#include "workbench/drawing/records/layer.h"

namespace workbench {

class LayerCommandTest : public EditorTest {
protected:
    LayerCommandTest() : m_document(newDocument()) {
        run(L"_-layer\nnew\nWalls,Roof,Ground floor\n\n");
        events();
    }
    const drawing::Layer& layer(const char* name) {
        const drawing::Database& data = m_document.data();
        return *data.look<drawing::Layer>(data.find(drawing::RecordKind::Layer, name));
    }
    void set(const char* path, const Value& value) {
        drawing::setByPath(m_document.data(), path, value);
    }
    Value get(const char* path) { return drawing::getByPath(m_document.data(), path); }

    Document& m_document;
};

TEST_F(LayerCommandTest, NewAddsTheLayersOfTheList) {
    EXPECT_EQ(m_document.data().ids(drawing::RecordKind::Layer).size(), 4U);
    run(L"_-layer\nnew\nwalls\n\n");
    EXPECT_EQ(m_document.data().ids(drawing::RecordKind::Layer).size(), 4U);
}

TEST_F(LayerCommandTest, SetMakesALayerCurrent) {
    run(L"_-layer\nset\nGround floor\n\n");
    EXPECT_EQ(read(L"CLAYER"), Value("Ground floor"));
    EXPECT_EQ(events(),
              (Lines{"started -LAYER", "will change CLAYER", "changed CLAYER", "ended -LAYER"}));
}

TEST_F(LayerCommandTest, MakeAddsALayerAndMakesItCurrent) {
    run(L"_-layer\nmake\nDoors\n\n");
    EXPECT_EQ(read(L"CLAYER"), Value("Doors"));
}

TEST_F(LayerCommandTest, OptionsChangeTheLayersThatFit) {
    run(L"_-layer\noff\nW*\nlock\nroof\nfreeze\nRoof\n\n");
    EXPECT_FALSE(layer("Walls").on);
    EXPECT_TRUE(layer("Ground floor").on);
    EXPECT_TRUE(layer("Roof").locked);
    EXPECT_TRUE(layer("Roof").frozen);
    run(L"_-layer\non\n*\nunlock\n*\nthaw\n*\n\n");
    EXPECT_TRUE(layer("Walls").on);
    EXPECT_FALSE(layer("Roof").locked);
    EXPECT_FALSE(layer("Roof").frozen);
}

TEST_F(LayerCommandTest, TheCurrentLayerIsNotFrozen) {
    run(L"_-layer\nset\nWalls\nfreeze\n*\n\n");
    EXPECT_FALSE(layer("Walls").frozen);
    EXPECT_TRUE(layer("0").frozen);
}

TEST_F(LayerCommandTest, AnUnknownOptionIsAskedForAgain) {
    run(L"_-layer\nnonsense\n");
    EXPECT_EQ(read(L"CMDNAMES"), Value("-LAYER"));
    editor().type(L"?\n*\n\n");
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
}

TEST_F(LayerCommandTest, AllThatItDidIsOneStepOfUndo) {
    run(L"_-layer\noff\nWalls\nlock\nRoof\n\n");
    editor().undo();
    EXPECT_TRUE(layer("Walls").on);
    EXPECT_FALSE(layer("Roof").locked);
    EXPECT_EQ(m_document.data().ids(drawing::RecordKind::Layer).size(), 4U);
}

TEST_F(LayerCommandTest, SetsTheCurrentFilterByANameWithBlanks) {
    set("filters.My group", Value::Table{{"kind", "group"}});
    EXPECT_TRUE(run(L"'._-layer _filter _set my group\n\n"));
    EXPECT_EQ(get("filters.current"), Value("My group"));
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
    EXPECT_EQ(events(), (Lines{"started -LAYER", "ended -LAYER"}));
    editor().undo();
    EXPECT_EQ(get("filters.current"), Value("All"));
}

TEST_F(LayerCommandTest, AnUnknownFilterIsNotSet) {
    run(L"_-layer _filter _set Nobody\n\n");
    EXPECT_EQ(get("filters.current"), Value("All"));
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
}

TEST_F(LayerCommandTest, RunsInsideAnotherCommandToo) {
    editor().type(L"_line\n");
    editor().type(L"'_-layer\noff\nWalls\n\n");
    EXPECT_FALSE(layer("Walls").on);
    EXPECT_EQ(read(L"CMDNAMES"), Value("LINE"));
}

TEST_F(LayerCommandTest, SavesRestoresAndDeletesStatesOfLayers) {
    run(L"_-layer\nstate\nsave\nMy state\n\n\n");
    run(L"_-layer\noff\n*\nlock\nRoof\n\n");
    m_bench.journal().take();
    EXPECT_TRUE(run(L"_-layer\nstate\nrestore\nMy state\n\n\n"));
    EXPECT_TRUE(layer("Walls").on);
    EXPECT_FALSE(layer("Roof").locked);
    EXPECT_EQ(get("current.layerState"), Value("My state"));
    EXPECT_EQ(fields("regen", "event"), Lines{"done"});
    editor().undo();
    EXPECT_FALSE(layer("Walls").on);
    EXPECT_TRUE(layer("Roof").locked);
    EXPECT_EQ(get("current.layerState"), Value(""));
    run(L"_-layer\nstate\ndelete\nMy state\n\n\n");
    EXPECT_EQ(get("states.count"), Value(0));
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
}

TEST_F(LayerCommandTest, AStateThatIsNotThereIsComplainedAbout) {
    run(L"_-layer\nstate\nrestore\nNobody\n\n\n");
    EXPECT_EQ(fields("output", "text"), Lines{"There is no layer state \"Nobody\"."});
    EXPECT_EQ(fields("regen", "event"), Lines{});
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
}

TEST_F(LayerCommandTest, StatesAreListed) {
    run(L"_-layer\nstate\nsave\nSummer\nsave\nWinter\n\n\n");
    m_bench.journal().take();
    run(L"_-layer\nstate\n?\n\n?\nS*\n\n\n");
    EXPECT_EQ(fields("output", "text"), (Lines{"Summer", "Winter", "Summer"}));
}

TEST_F(LayerCommandTest, LayersThatComeWhileAllAreLookedOverAreToBeAccepted) {
    EXPECT_TRUE(layer("Walls").reconciled);
    write(L"LAYEREVAL", 1);
    run(L"_-layer\nnew\nDoors\n\n");
    EXPECT_TRUE(layer("Doors").reconciled);
    write(L"LAYEREVAL", 2);
    run(L"_-layer\nnew\nWindows\n\n");
    EXPECT_FALSE(layer("Windows").reconciled);
    run(L"_-layer\nreconcile\nW*\n\n");
    EXPECT_TRUE(layer("Windows").reconciled);
}

TEST_F(LayerCommandTest, ALayerOfAReferencedDrawingIsNotMade) {
    run(L"_-layer\nnew\nSite|Trees,Doors\n\n");
    EXPECT_EQ(get("layers[\"Site|Trees\"]"), Value());
    EXPECT_NE(get("layers.Doors"), Value());
}

}  // namespace workbench
