#include "tests/layer/filter_combo_fixture.h"

#include <hostapi/zorq/layers.h>

namespace {

using support::Sent;
using workbench::Value;

// What it shows

TEST_F(FilterComboTest, TreeShowsTheRootOpenAndEachLevelInTheOrderOfTexts) {
    clickCombo();
    EXPECT_EQ(rows(), (Texts{rootName(), L" All Used Layers", L" House", L" Top"}));
}

TEST_F(FilterComboTest, CurrentFilterIsSelectedAndInView) {
    setDb("filters.current", "Inner");
    clickCombo();
    EXPECT_EQ(selectedNode(), L"Inner");
    EXPECT_EQ(rows(), (Texts{rootName(), L" All Used Layers", L" House", L" Top", L"  Inner"}));
}

TEST_F(FilterComboTest, ItemsHaveThePicturesOfTheirFilters) {
    clickCombo();
    for (const wchar_t* name : {L"House", L"Top", L"Inner"})
        EXPECT_NE(treeWidget().pictureOf(node(name)), nullptr) << name;
}

// Applying

TEST_F(FilterComboTest, ClickOnALabelAppliesTheFilterAndClosesTheDropdown) {
    clickCombo();
    clickNode(L"House");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(takeSent(), (std::vector<Sent>{{"'._-layer _filter _set House\n\n", "line"}}));
    EXPECT_EQ(db("filters.current"), Value("House"));
    EXPECT_EQ(shown(), L"House");
    EXPECT_EQ(shown(second()), L"House");
}

TEST_F(FilterComboTest, ClickOnAnIconAppliesTheFilterToo) {
    clickCombo();
    const CRect picture = treeWidget().partsOf(node(L"Top")).picture;
    workbench::gestures::clickAt(bench().toolkit(), tree(), {picture.left + 1, picture.top + 1});
    settle();
    EXPECT_EQ(takeSent().size(), 1U);
    EXPECT_EQ(shown(), L"Top");
}

TEST_F(FilterComboTest, ClickBesideTheLabelsAppliesNothing) {
    clickCombo();
    const HWND opened = tree();
    const CRect label = treeWidget().partsOf(node(L"House")).label;
    const CRect button = treeWidget().partsOf(node(L"Top")).button;
    const CRect client = CWnd::FromHandle(opened)->GetClientRect();
    for (const CPoint place :
         {CPoint{label.right + 20, label.top + 2}, CPoint{button.left + 2, button.top + 2},
          CPoint{30, client.bottom - 2}}) {
        workbench::gestures::clickAt(bench().toolkit(), opened, place);
        settle();
        EXPECT_TRUE(isOpen());
    }
    EXPECT_EQ(takeSent(), std::vector<Sent>{});
}

TEST_F(FilterComboTest, FilterThatVanishedSinceIsNotApplied) {
    clickCombo();
    const CPoint place = labelOf(L"House");
    setDb("filters.House", {});
    tellCommandEnded(L"LAYER");
    workbench::gestures::clickAt(bench().toolkit(), tree(), place);
    settle();
    EXPECT_EQ(takeSent(), std::vector<Sent>{});
    EXPECT_FALSE(isOpen());
}

// Right clicks

TEST_F(FilterComboTest, RightClickOnEmptySpaceClearsTheSelection) {
    clickCombo();
    answer("menu", "Rename");
    const CRect client = CWnd::FromHandle(tree())->GetClientRect();
    bench().toolkit().mouse().contextMenu(tree(), {30, client.bottom - 2});
    settle();
    EXPECT_EQ(selectedNode(), L"");
    EXPECT_EQ(treeWidget().edited(), nullptr) << "the line is gray";
}

// Groups and names

TEST_F(FilterComboTest, NewGroupStandsBelowTheFilterWithItsLabelEdited) {
    choose(L"Top", "New Group Filter");
    EXPECT_TRUE(isStored("Group Filter1"));
    EXPECT_EQ(treeWidget().edited(), node(L"Group Filter1"));
    editLabel(L"Fresh", "enter");
    EXPECT_TRUE(isStored("Fresh"));
    EXPECT_EQ(db("filters.Fresh.parent"), Value("Top"));
    EXPECT_TRUE(isInTree(L"Fresh"));
    EXPECT_FALSE(isInTree(L"Group Filter1"));
}

TEST_F(FilterComboTest, CancelledEditKeepsTheName) {
    choose(L"House", "Rename");
    editLabel(L"Home", "escape");
    EXPECT_TRUE(isStored("House"));
    EXPECT_TRUE(isInTree(L"House"));
    EXPECT_EQ(takeTexts("box"), Calls{});
}

TEST_F(FilterComboTest, RefusedNameKeepsTheOldTextInTheTree) {
    choose(L"House", "Rename");
    editLabel(L"Top", "enter");
    EXPECT_EQ(takeTexts("box"), Calls{"A layer filter of this name exists already."});
    EXPECT_TRUE(isInTree(L"House"));
}

TEST_F(FilterComboTest, RenamingRefreshesTheCombosToo) {
    setDb("filters.current", "House");
    choose(L"House", "Rename");
    editLabel(L"Home", "enter");
    EXPECT_EQ(shown(), L"Home");
    EXPECT_EQ(shown(second()), L"Home");
    EXPECT_TRUE(isInTree(L"Home"));
}

TEST_F(FilterComboTest, ConvertingShowsTheGroupInTheFiltersPlace) {
    choose(L"House", "Convert to Group Filter");
    EXPECT_EQ(db("filters.House.kind"), Value("group"));
    EXPECT_TRUE(isInTree(L"House"));
}

TEST_F(FilterComboTest, ConvertingRefreshesOnceMoreThanTheManagerDoes) {
    takeJournal();
    choose(L"House", "Convert to Group Filter");
    EXPECT_EQ(takeCount("vxedSetUseCurrentFilterFlag"), 2U);
}

TEST_F(FilterComboTest, FailedConversionIsDiscardedByTheRefresh) {
    fail("VxLyLayerFilter::addNested", {}, 1);
    choose(L"House", "Convert to Group Filter");
    EXPECT_EQ(db("filters.House.kind"), Value("property"));
    EXPECT_TRUE(isInTree(L"House"));
}

TEST_F(FilterComboTest, DeletingTheCurrentFilterShowsTheRoot) {
    setDb("filters.current", "House");
    choose(L"House", "Delete");
    EXPECT_FALSE(isStored("House"));
    EXPECT_FALSE(isInTree(L"House"));
    EXPECT_EQ(shown(), rootName());
}

// Layers

struct LayerCommandCase {
    const char* path;
    const char* property;
    bool before;
    bool after;
    bool regenerates;
};

class FilterLayerCommandTest : public FilterComboTest,
                               public testing::WithParamInterface<LayerCommandCase> {};

TEST_P(FilterLayerCommandTest, ChangesTheLayersOfTheFilter) {
    const LayerCommandCase& row = GetParam();
    for (const char* layer : {"Walls", "Doors"})
        setDb(std::string("layers.") + layer + "." + row.property, row.before);
    const Value roof = db(std::string("layers.Roof.") + row.property);
    clickCombo();
    takeJournal();
    choose(L"House", row.path);
    for (const char* layer : {"Walls", "Doors"})
        EXPECT_EQ(db(std::string("layers.") + layer + "." + row.property), Value(row.after));
    EXPECT_EQ(db(std::string("layers.Roof.") + row.property), roof);
    EXPECT_EQ(takeCount("vxedRegenLayers"), row.regenerates ? 1U : 0U);
}

INSTANTIATE_TEST_SUITE_P(
    Commands, FilterLayerCommandTest,
    testing::Values(LayerCommandCase{"Visibility/On", "on", false, true, true},
                    LayerCommandCase{"Visibility/Off", "on", true, false, true},
                    LayerCommandCase{"Visibility/Freeze", "frozen", false, true, true},
                    LayerCommandCase{"Visibility/Thaw", "frozen", true, false, true},
                    LayerCommandCase{"Locking/Lock", "locked", false, true, false},
                    LayerCommandCase{"Locking/Unlock", "locked", true, false, false}));

TEST_F(FilterComboTest, IsolatingFreezesTheOtherLayersWithoutRegeneration) {
    takeJournal();
    choose(L"House", "Isolate Layers/All Viewports");
    EXPECT_EQ(db("layers.Roof.frozen"), Value(true));
    EXPECT_EQ(db("layers.Walls.frozen"), Value(false));
    EXPECT_EQ(takeCount("vxedRegenLayers"), 0U);
}

TEST_F(FilterComboTest, ViewportCommandsWorkInAViewportOfALayout) {
    set(L"TILEMODE", 0);
    type(L"MSPACE\n");
    choose(L"House", "Viewport/Freeze in Active Viewport");
    EXPECT_EQ(db("viewports.current.frozenLayers").asList().size(), 2U);
    choose(L"House", "Viewport/Thaw in Active Viewport");
    EXPECT_EQ(db("viewports.current.frozenLayers").asList().size(), 0U);
    choose(L"House", "Isolate Layers/Active Viewport Only");
    EXPECT_EQ(db("viewports.current.frozenLayers"), Value(Value::List{"Roof"}));
    takeSent();
}

TEST_F(FilterComboTest, OneCommandIsOneStepOfUndo) {
    choose(L"House", "Visibility/Off");
    type(L"U\n");
    takeSent();
    EXPECT_EQ(db("layers.Walls.on"), Value(true));
    EXPECT_EQ(db("layers.Doors.on"), Value(true));
    EXPECT_TRUE(isStored("House"));
}

// Selections

TEST_F(FilterComboTest, CancelledPickLeavesTheGroupAsItIs) {
    for (const char* path : {"Select Layers/Add to Group", "Select Layers/Replace Group"}) {
        choose(L"Top", path);
        EXPECT_EQ(db("filters.Top.layers"), Value(Value::List{"Roof"})) << path;
        EXPECT_FALSE(isOpen()) << "the dropdown is out of the way of the picking";
    }
}

TEST_F(FilterComboTest, PickedEntitiesBringTheirLayersToTheGroup) {
    setDb("entities.new", Value::Table{{"type", "line"},
                                       {"layer", "Walls"},
                                       {"points", Value::List{Value::List{0.0, 0.0, 0.0},
                                                              Value::List{1.0, 0.0, 0.0}}}});
    const Value line = db("entities").asList().front();
    answer("select", Value::List{line});
    choose(L"Top", "Select Layers/Add to Group");
    EXPECT_EQ(db("filters.Top.layers"), Value(Value::List{"Roof", "Walls"}));
    answer("select", Value::List{line});
    choose(L"Top", "Select Layers/Replace Group");
    EXPECT_EQ(db("filters.Top.layers"), Value(Value::List{"Walls"}));
}

TEST_F(FilterComboTest, CommandWithoutASelectedItemDoesNothing) {
    clickCombo();
    treeWidget().select(nullptr);
    takeJournal();
    bench().windows().send(tree(), WM_COMMAND, 11001, 0);
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(FilterComboTest, NumbersBesideTheMenusAreNoCommands) {
    clickCombo();
    takeJournal();
    for (const UINT number : {11000U, 11017U}) {
        bench().windows().send(tree(), WM_COMMAND, number, 0);
        EXPECT_EQ(takeCallLines({"CTreeCtrl::EditLabel", "VxAxDocLock::VxAxDocLock", "vxedSSGet"}),
                  Calls{});
    }
}

}  // namespace
