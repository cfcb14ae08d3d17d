#include "controls/view_state.h"

#include "tests/palette/palette_fixture.h"
#include "tests/support/call_lines.h"
#include "workbench/drawing/path_access.h"
#include "workbench/drawing/records/current.h"
#include "workbench/editor/editor.h"
#include "workbench/navigation/navigation_tool.h"

#include <hostapi/zorq/views.h>

#include <string>
#include <vector>

namespace {

using Calls = std::vector<std::string>;

class ViewStateTest : public PaletteTest {
protected:
    void set(const wchar_t* name, const workbench::Value& value) {
        ASSERT_TRUE(bench().editor().set(name, value));
    }
    void setPerspective(bool on) { set(L"PERSPECTIVE", on ? 1 : 0); }
    void startTool() {
        ASSERT_TRUE(bench().navigation().start(workbench::NavigationTool::kFreeOrbit));
        forget();
    }
    workbench::drawing::Database& drawing() {
        return bench().editor().documents().current()->data();
    }
    void setDb(const std::string& path, const workbench::Value& value) {
        workbench::drawing::setByPath(drawing(), path, value);
    }
    void openHouse() {
        bench().editor().documents().open(std::string(PROJECT_SOURCE_ROOT) +
                                          "/examples/house.json");
    }
    /// Goes to a viewport of a layout; 1 is the sheet itself.
    void goToLayout(int viewport) {
        openHouse();
        set(L"TILEMODE", 0);
        set(L"CVPORT", viewport);
    }
    /// Leaves model space without a viewport: `CVPORT` reads as -1.
    void loseViewport() {
        workbench::drawing::Writing<workbench::drawing::Current> writing(
            drawing(), drawing().first(workbench::drawing::RecordKind::Current));
        writing->modelViewport = -1;
    }
    Calls calls(const std::vector<std::string_view>& names) {
        return support::callLines(bench().journal().take("call"), names);
    }
    std::size_t temporaryViews() { return bench().navigation().graphics().temporaryCount(); }
};

// The viewport's number

TEST_F(ViewStateTest, ViewportIsTheOneInWhichTheUserWorks) {
    EXPECT_EQ(currentViewportNumber(), 2);
    goToLayout(1);
    EXPECT_EQ(currentViewportNumber(), 1);
}

TEST_F(ViewStateTest, ThereIsNoViewportWhileItsNumberIsMinusOneOrCannotBeRead) {
    loseViewport();
    EXPECT_FALSE(currentViewportNumber().has_value());
    openHouse();
    EXPECT_TRUE(currentViewportNumber().has_value());
    for (const int status : {-5001, 0, 5101}) {
        bench().faults().fail("vxedGetVar:CVPORT", status);
        EXPECT_FALSE(currentViewportNumber().has_value()) << status;
    }
}

// The sheet

TEST_F(ViewStateTest, SheetIsAViewportOfItsOwn) {
    EXPECT_FALSE(IsPaperSpaceViewport()) << "model space";
    goToLayout(1);
    EXPECT_TRUE(IsPaperSpaceViewport());
    set(L"CVPORT", 2);
    EXPECT_FALSE(IsPaperSpaceViewport());
}

TEST_F(ViewStateTest, ModelSpaceAsksForNoViewport) {
    forget();
    EXPECT_FALSE(IsPaperSpaceViewport());
    EXPECT_EQ(calls({"VxDbDatabase::tilemode", "VxDbDatabase::paperSpaceVportId",
                     "vxedGetCurViewportObjectId"}),
              Calls{"VxDbDatabase::tilemode()"});
}

TEST_F(ViewStateTest, WithoutADatabaseThereIsNoSheet) {
    goToLayout(1);
    bench().faults().fail("vxdbHostApplicationServices");
    EXPECT_FALSE(IsPaperSpaceViewport());
}

class LostSheetTest : public ViewStateTest, public testing::WithParamInterface<const char*> {};

TEST_P(LostSheetTest, IsNotTheCurrentViewport) {
    goToLayout(1);
    bench().faults().fail(GetParam());
    EXPECT_FALSE(IsPaperSpaceViewport());
}

INSTANTIATE_TEST_SUITE_P(Ids, LostSheetTest,
                         testing::Values("VxDbDatabase::paperSpaceVportId",
                                         "vxedGetCurViewportObjectId"));

TEST_F(ViewStateTest, TwoIdsThatAreMissingAreNotOneSheet) {
    goToLayout(1);
    bench().faults().fail("VxDbDatabase::paperSpaceVportId");
    bench().faults().fail("vxedGetCurViewportObjectId");
    EXPECT_FALSE(IsPaperSpaceViewport());
}

// The lock

TEST_F(ViewStateTest, ViewportOfALayoutIsLockedAsItsMarkSays) {
    goToLayout(2);
    setDb("viewports.current.locked", false);
    EXPECT_FALSE(IsViewportLocked());
    setDb("viewports.current.locked", true);
    forget();
    EXPECT_TRUE(IsViewportLocked());
    EXPECT_EQ(calls({"VxDbViewport::isLocked", "VxDbObject::close"}),
              (Calls{"VxDbViewport::isLocked()", "VxDbObject::close()"}));
}

TEST_F(ViewStateTest, SheetIsNeverLocked) {
    goToLayout(1);
    setDb("viewports.current.locked", true);
    forget();
    EXPECT_FALSE(IsViewportLocked());
    EXPECT_EQ(calls({"vxdbOpenObject"}), Calls{});
}

TEST_F(ViewStateTest, TileOfModelSpaceIsNoSuchObjectAndNotLocked) {
    forget();
    EXPECT_FALSE(IsViewportLocked());
    EXPECT_EQ(calls({"VxDbViewport::isLocked"}), Calls{});
}

TEST_F(ViewStateTest, ViewportThatCannotBeOpenedIsNotLocked) {
    goToLayout(2);
    setDb("viewports.current.locked", true);
    bench().faults().fail("vxdbOpenObject");
    EXPECT_FALSE(IsViewportLocked());
}

TEST_F(ViewStateTest, MissingViewportCountsAsLockedAndNothingElseIsAsked) {
    loseViewport();
    forget();
    EXPECT_TRUE(IsViewportLocked());
    EXPECT_EQ(calls({"vxedGetVar", "VxDbDatabase::tilemode", "vxdbOpenObject"}),
              Calls{"vxedGetVar(\"CVPORT\")"});
    openHouse();
    bench().faults().fail("vxedGetVar:CVPORT");
    EXPECT_TRUE(IsViewportLocked());
}

// No navigation tool

TEST_F(ViewStateTest, VariableDecidesWithoutANavigationTool) {
    setPerspective(false);
    EXPECT_FALSE(IsPerspectiveView());
    setPerspective(true);
    EXPECT_TRUE(IsPerspectiveView());
    EXPECT_EQ(callCount("vxgsGetGsView"), 0);
}

TEST_F(ViewStateTest, UnreadableVariableIsNoPerspective) {
    setPerspective(true);
    fail("vxedGetVar:PERSPECTIVE");
    EXPECT_FALSE(IsPerspectiveView());
}

// A navigation tool runs

TEST_F(ViewStateTest, LiveViewDecidesWhileAToolRuns) {
    setPerspective(true);
    set(L"VSCURRENT", "Realistic");
    startTool();
    EXPECT_TRUE(IsPerspectiveView());
    setPerspective(false);
    EXPECT_FALSE(IsPerspectiveView());
    EXPECT_EQ(callCount("VxGsClassFactory::createView"), 0);
    EXPECT_EQ(callCount("VxGsClassFactory::deleteView"), 0) << "a live view is the host's";
}

TEST_F(ViewStateTest, TemporaryViewStandsInForAMissingLiveOneAndIsGivenBack) {
    setPerspective(true);
    startTool();
    EXPECT_TRUE(IsPerspectiveView());
    EXPECT_EQ(callCount("VxGsClassFactory::createView"), 1);
    EXPECT_EQ(callCount("VxGsClassFactory::deleteView"), 1);
    EXPECT_EQ(temporaryViews(), 0U);
}

TEST_F(ViewStateTest, TemporaryViewIsMadeForTheViewportAndFilledFromIt) {
    setPerspective(true);
    startTool();
    const std::string id = std::to_string(vxedGetCurViewportObjectId().number);
    forget();
    EXPECT_TRUE(IsPerspectiveView());
    EXPECT_EQ(calls({"vxgsGetGsView", "vxgsGetGsManager", "VxGsManager::classFactory",
                     "VxGsClassFactory::createView", "vxgsGetViewParameters",
                     "VxGsView::isPerspective", "VxGsClassFactory::deleteView", "vxedGetVar"}),
              (Calls{"vxedGetVar(\"CVPORT\")", "vxgsGetGsView(2, false)", "vxgsGetGsManager(null)",
                     "VxGsManager::classFactory()", "VxGsClassFactory::createView(2, " + id + ")",
                     "vxgsGetViewParameters(2, object)", "VxGsView::isPerspective()",
                     "VxGsClassFactory::deleteView(object)"}));
}

TEST_F(ViewStateTest, MissingViewportIsNoPerspectiveWhileAToolRuns) {
    setPerspective(true);
    startTool();
    loseViewport();
    forget();
    EXPECT_FALSE(IsPerspectiveView());
    EXPECT_EQ(calls({"vxgsGetGsView"}), Calls{});
}

TEST_F(ViewStateTest, ToolThatIsNotHandedOverCountsAsRunning) {
    setPerspective(true);
    bench().faults().fail("OrbitInProgress", 1);
    bench().faults().fail("vxgsGetGsManager");
    EXPECT_FALSE(IsPerspectiveView()) << "the variable was asked in place of the view";
}

class LostViewTest : public ViewStateTest, public testing::WithParamInterface<const char*> {};

TEST_P(LostViewTest, IsNoPerspectiveAndLeavesNoViewBehind) {
    setPerspective(true);
    startTool();
    bench().faults().fail(GetParam());
    EXPECT_FALSE(IsPerspectiveView());
    EXPECT_EQ(temporaryViews(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Calls, LostViewTest,
                         testing::Values("vxedGetVar:CVPORT", "vxgsGetGsManager",
                                         "VxGsManager::classFactory",
                                         "VxGsClassFactory::createView", "vxgsGetViewParameters"));

}  // namespace
