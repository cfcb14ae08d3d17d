#include "workbench/toolbar/property_lists.h"

#include "tests/workbench/toolbar/toolbar_fixture.h"

namespace workbench {

TEST_F(ToolbarTest, LayersAndTextStylesAreTheDrawings) {
    setDb("layers.Walls", Value::Table{});
    EXPECT_EQ(entries(kLayers), (ToolbarEntries{L"0", L"Walls"}));
    choose(kLayers, L"Walls");
    EXPECT_EQ(current(kLayers), L"Walls");
    EXPECT_EQ(read(L"CLAYER"), Value("Walls"));
    setDb("textStyles.Notes", Value::Table{});
    EXPECT_EQ(entries(kTextStyles), (ToolbarEntries{L"Standard", L"Notes"}));
    choose(kTextStyles, L"Notes");
    EXPECT_EQ(current(kTextStyles), L"Notes");
}

TEST_F(ToolbarTest, TheListOfLayersGoesByTheCurrentFilterWhenItIsTold) {
    setDb("layers.Walls", Value::Table{});
    setDb("layers.Roof", Value::Table{});
    setDb("filters.W", Value::Table{{"expression", "NAME==\"W*\""}});
    setDb("filters.current", "W");
    EXPECT_EQ(entries(kLayers), (ToolbarEntries{L"0", L"Walls", L"Roof"}));
    editor().layerDisplay().setByFilter(true);
    EXPECT_EQ(entries(kLayers), (ToolbarEntries{L"0", L"Walls"}));
    editor().layerDisplay().setInverted(true);
    EXPECT_EQ(entries(kLayers), (ToolbarEntries{L"0", L"Roof"}));
    setDb("filters.current", "All");
    EXPECT_EQ(entries(kLayers), ToolbarEntries{L"0"});
    EXPECT_EQ(current(kLayers), L"0");
}

TEST_F(ToolbarTest, AFrozenLayerIsNotMadeCurrent) {
    setDb("layers.Walls", Value::Table{{"frozen", true}});
    choose(kLayers, L"Walls");
    EXPECT_EQ(current(kLayers), L"0");
}

TEST_F(ToolbarTest, LinetypesOfLayersAreAmongTheEntries) {
    EXPECT_FALSE(holds(kLinetypes, L"Dashed"));
    setDb("layers.Walls", Value::Table{{"linetype", "Dashed"}});
    EXPECT_TRUE(holds(kLinetypes, L"Dashed"));
    choose(kLinetypes, L"Dashed");
    EXPECT_EQ(current(kLinetypes), L"Dashed");
}

TEST_F(ToolbarTest, ColoursOfTheDrawingAreAmongTheEntries) {
    setDb("layers.Walls", Value::Table{{"colour", "#d8cbb5"}});
    setDb("layers.Pond", Value::Table{{"colour", 142}});
    EXPECT_TRUE(holds(kColours, L"#d8cbb5"));
    EXPECT_TRUE(holds(kColours, L"142"));
    EXPECT_EQ(entries(kColours).size(), 11U) << "red and white stand there once";
    editor().set(L"CECOLOR", "77");
    EXPECT_TRUE(holds(kColours, L"77"));
    EXPECT_EQ(current(kColours), L"77");
    choose(kColours, L"#d8cbb5");
    EXPECT_EQ(read(L"CECOLOR"), Value("#d8cbb5"));
}

TEST_F(ToolbarTest, LineweightsOfLayersAreAmongTheEntries) {
    EXPECT_TRUE(holds(kLineweights, L"0.25 mm"));
    EXPECT_TRUE(holds(kLineweights, L"1.00 mm"));
    EXPECT_FALSE(holds(kLineweights, L"2.11 mm"));
    setDb("layers.Walls", Value::Table{{"lineweight", 211}});
    setDb("layers.Pond", Value::Table{{"lineweight", 5}});
    EXPECT_TRUE(holds(kLineweights, L"2.11 mm"));
    EXPECT_TRUE(holds(kLineweights, L"0.05 mm"));
}

TEST_F(ToolbarTest, WithoutADocumentOnlyWhatEveryDrawingHasIsLeft) {
    editor().documents().close(*editor().documents().current());
    EXPECT_TRUE(entries(kLayers).empty());
    EXPECT_EQ(entries(kLinetypes), (ToolbarEntries{L"ByLayer", L"ByBlock", L"Continuous"}));
    EXPECT_EQ(current(kLayers), L"");
}

}  // namespace workbench
