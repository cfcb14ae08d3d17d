#include "workbench/toolbar/view_lists.h"

#include "tests/workbench/toolbar/toolbar_fixture.h"

namespace workbench {

namespace {

class ViewListsTest : public ToolbarTest {
protected:
    ViewListsTest() {
        setDb("viewports.current.eye", Value::List{0.0, 0.0, 10.0});
        setDb("viewports.current.target", Value::List{0.0, 0.0, 0.0});
    }
    void lock() { setDb("viewports.current.locked", true); }
    /// A viewport on a sheet, 100 millimetres high, in which the user works.
    void workOnSheet() {
        editor().set(L"TILEMODE", 0);
        ASSERT_TRUE(editor().set(L"CVPORT", 2));
        setDb("viewports.current.lowerLeft", Value::List{0.0, 0.0, 0.0});
        setDb("viewports.current.upperRight", Value::List{200.0, 100.0, 0.0});
        setDb("viewports.current.width", 4000.0);
        setDb("viewports.current.height", 2000.0);
    }
};

}  // namespace

TEST_F(ViewListsTest, ThePresetInForceIsThatOfTheView) {
    EXPECT_EQ(current(kPresets), L"Top");
    choose(kPresets, L"SW Isometric");
    EXPECT_EQ(current(kPresets), L"SW Isometric");
    EXPECT_LT(db("viewports.current.eye.x").asReal(), 0.0);
    setDb("viewports.current.eye", Value::List{1.0, 2.0, 3.0});
    EXPECT_EQ(current(kPresets), L"");
    choose(kPresets, L"Inside out");
    EXPECT_EQ(db("viewports.current.eye.x"), Value(1.0));
}

TEST_F(ViewListsTest, ALockedViewportTakesNoChoice) {
    setDb("views.Pond", Value::Table{});
    lock();
    choose(kPresets, L"Left");
    choose(kViews, L"Pond");
    EXPECT_EQ(db("viewports.current.eye.z"), Value(10.0));
    EXPECT_EQ(current(kViews), L"");
}

TEST_F(ViewListsTest, NamedViewsAreTheDrawingsAndTheAppliedOneIsInForce) {
    EXPECT_TRUE(entries(kViews).empty());
    EXPECT_EQ(current(kViews), L"");
    setDb("views.Pond", Value::Table{{"width", 8.0}});
    setDb("views.Attic", Value::Table{});
    EXPECT_EQ(entries(kViews), (ToolbarEntries{L"Pond", L"Attic"}));
    choose(kViews, L"Pond");
    EXPECT_EQ(current(kViews), L"Pond");
    EXPECT_EQ(db("viewports.current.width"), Value(8.0));
    choose(kViews, L"Cellar");
    EXPECT_EQ(current(kViews), L"Pond");
    setDb("views.Pond", Value());
    EXPECT_EQ(current(kViews), L"");
}

TEST_F(ViewListsTest, ATileHasNoScale) {
    EXPECT_TRUE(entries(kScales).empty());
    EXPECT_EQ(current(kScales), L"");
}

TEST_F(ViewListsTest, AViewportOnASheetShowsItsScaleAndTakesAnother) {
    workOnSheet();
    EXPECT_EQ(current(kScales), L"1:20");
    choose(kScales, L"1:50");
    EXPECT_EQ(current(kScales), L"1:50");
    EXPECT_EQ(db("viewports.current.height"), Value(5000.0));
    EXPECT_EQ(db("viewports.current.width"), Value(10000.0));
    setDb("viewports.current.height", 3750.0);
    EXPECT_EQ(current(kScales), L"1:37.5");
    EXPECT_TRUE(holds(kScales, L"1:37.5"));
    lock();
    choose(kScales, L"1:1");
    EXPECT_EQ(current(kScales), L"1:37.5");
}

}  // namespace workbench
