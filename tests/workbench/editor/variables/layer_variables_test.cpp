#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/path_access.h"
#include "workbench/drawing/records/layer.h"

namespace workbench {

TEST_F(EditorTest, TheCurrentLayerIsOneOfTheDrawingsThatIsNotFrozen) {
    Document& document = newDocument();
    drawing::Layer walls;
    walls.name = "Walls";
    document.data().add(walls);
    drawing::Layer ice;
    ice.name = "Ice";
    ice.frozen = true;
    document.data().add(ice);
    EXPECT_EQ(read(L"CLAYER"), Value("0"));
    EXPECT_TRUE(write(L"CLAYER", "walls"));
    EXPECT_EQ(read(L"CLAYER"), Value("Walls"));
    EXPECT_FALSE(write(L"CLAYER", "Ice"));
    EXPECT_FALSE(write(L"CLAYER", "None"));
    EXPECT_EQ(read(L"CLAYER"), Value("Walls"));
}

TEST_F(EditorTest, ARenamedCurrentLayerIsAChangeOfTheVariable) {
    Document& document = newDocument();
    drawing::Layer walls;
    walls.name = "Walls";
    const drawing::ObjectId id = document.data().add(walls).id;
    write(L"CLAYER", "Walls");
    events();
    drawing::Writing<drawing::Layer>(document.data(), id)->name = "Outer walls";
    editor().pump();
    EXPECT_EQ(events(), Lines{"changed CLAYER"});
}

TEST_F(EditorTest, TheFadeOfLockedLayersIsSignedPercent) {
    EXPECT_EQ(read(L"LAYLOCKFADECTL"), Value(50));
    EXPECT_TRUE(write(L"LAYLOCKFADECTL", -50));
    EXPECT_EQ(read(L"LAYLOCKFADECTL"), Value(-50));
    EXPECT_TRUE(write(L"LAYEREVAL", 2));
    EXPECT_FALSE(write(L"LAYEREVAL", 3));
}

TEST_F(EditorTest, LayersThatLookOtherInTheActiveViewportAreTold) {
    EXPECT_EQ(read(L"VPLAYEROVERRIDES"), Value());
    Document& document = newDocument();
    EXPECT_EQ(read(L"VPLAYEROVERRIDES"), Value(0));
    drawing::setByPath(document.data(), "viewports.current.layerOverrides",
                       Value::List{Value::Table{{"layer", "0"}, {"colour", 1}}});
    EXPECT_EQ(read(L"VPLAYEROVERRIDES"), Value(1));
    EXPECT_FALSE(write(L"VPLAYEROVERRIDES", 0));
    editor().set(L"TILEMODE", 0);
    EXPECT_EQ(read(L"VPLAYEROVERRIDES"), Value(0));
}

}  // namespace workbench
