#include "workbench/commands/layer_command.h"

#include "tests/workbench/editor/editor_fixture.h"
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

}  // namespace workbench
