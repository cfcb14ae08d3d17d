#include "tests/nav3d/nav_fixture.h"

#include <hostapi/zorq/views.h>

#include <gmock/gmock.h>

#include <cmath>
#include <string>
#include <vector>

namespace {

using testing::Contains;
using testing::Not;
using testing::StartsWith;
using Calls = std::vector<std::string>;

/// What sets a lens, and in what order.
const std::vector<std::string_view> kSteps{"vxedGetVar",
                                           "vxgsWriteViewToUndoController",
                                           "OrbitInProgress",
                                           "vxrxServiceIsRegistered",
                                           "GetModuleHandle",
                                           "GetProcAddress",
                                           "vxgsGetGsView",
                                           "vxgsGetGsManager",
                                           "VxGsManager::classFactory",
                                           "VxGsClassFactory::createView",
                                           "vxgsGetViewParameters",
                                           "vxgsSetLensLength",
                                           "VxGsView::setView",
                                           "vxgsSetViewParameters",
                                           "VxGsView::update",
                                           "VxGsClassFactory::deleteView",
                                           "vxedSendViewChanged",
                                           "VxViewMgrDlg::viewComboClear"};

/// The lens control alone, hidden, so that it does not follow what it sets off.
class LensViewTest : public NavControlTest {
protected:
    void SetUp() override {
        useMenuOf("3DNavZoomSliderControl");
        showControl("3DNavZoomSliderControl");
        set(L"PERSPECTIVE", 1);
        setDb("viewports.current.eye", workbench::Value::List{10.0, 20.0, 30.0});
        setDb("viewports.current.target", workbench::Value::List{1.0, 2.0, 3.0});
        setDb("viewports.current.up", workbench::Value::List{0.0, 0.6, 0.8});
        setDb("viewports.current.width", 300.0);
        setDb("viewports.current.height", 200.0);
        paletteSet()->ShowWindow(SW_HIDE);
    }
    /// Moves the slider's position to 350, a lens of 35 mm.
    void move() {
        takeJournal();
        send(1534, 350, reinterpret_cast<LPARAM>(slider()));
    }
    /// The steps since the last look, without what is read to show the lens; `setView` without its
    /// numbers.
    Calls steps() {
        Calls made = takeCallLines(kSteps);
        std::erase(made, "vxedGetVar(\"LUPREC\")");
        for (std::string& call : made) {
            if (call.find("VxGsView::setView") == 0)
                call = "VxGsView::setView";
        }
        return made;
    }
    static std::string viewportId() { return std::to_string(vxedGetCurViewportObjectId().number); }
    double shown(const std::string& name) { return number("viewports.current." + name); }
};

// The view that stands for the viewport

TEST_F(LensViewTest, TemporaryViewIsFilledFromTheViewportAndGivenBack) {
    const std::string id = viewportId();
    move();
    EXPECT_EQ(steps(),
              (Calls{"vxedGetVar(\"CVPORT\")", "vxgsWriteViewToUndoController(2)",
                     "OrbitInProgress()", "vxgsGetGsView(2, false)", "vxgsGetGsManager(null)",
                     "VxGsManager::classFactory()", "VxGsClassFactory::createView(2, " + id + ")",
                     "vxgsGetViewParameters(2, object)", "vxgsSetLensLength(2, 35.000000)",
                     "VxGsView::setView", "vxgsSetViewParameters(2, object, true, false, false)",
                     "VxGsView::update()", "VxGsClassFactory::deleteView(object)",
                     "vxedSendViewChanged()", "VxViewMgrDlg::viewComboClear()"}));
    EXPECT_EQ(bench().navigation().graphics().temporaryCount(), 0U);
}

TEST_F(LensViewTest, LiveViewIsNeitherFilledNorGivenBack) {
    set(L"VSCURRENT", "Realistic");
    move();
    EXPECT_EQ(
        steps(),
        (Calls{"vxedGetVar(\"CVPORT\")", "vxgsWriteViewToUndoController(2)", "OrbitInProgress()",
               "vxgsGetGsView(2, false)", "vxgsSetLensLength(2, 35.000000)", "VxGsView::setView",
               "vxgsSetViewParameters(2, object, true, false, false)", "VxGsView::update()",
               "vxedSendViewChanged()", "VxViewMgrDlg::viewComboClear()"}));
}

class NoViewTest : public LensViewTest, public testing::WithParamInterface<const char*> {};

TEST_P(NoViewTest, RecordsTheUndoAndSetsAndTellsNothing) {
    fail(GetParam());
    move();
    const Calls made = steps();
    ASSERT_GE(made.size(), 3U);
    EXPECT_EQ(made[1], "vxgsWriteViewToUndoController(2)");
    EXPECT_THAT(made, Not(Contains(StartsWith("vxgsSet"))));
    EXPECT_THAT(made, Not(Contains("vxedSendViewChanged()")));
    EXPECT_THAT(made, Not(Contains("VxViewMgrDlg::viewComboClear()")));
    EXPECT_EQ(bench().navigation().graphics().temporaryCount(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Roads, NoViewTest,
                         testing::Values("vxgsGetGsManager", "VxGsManager::classFactory",
                                         "VxGsClassFactory::createView"));

// What is set

TEST_F(LensViewTest, FieldIsThatOfTheLensAtTheDistanceOfTheEyeInTheSameShape) {
    const double distance = std::sqrt(9.0 * 9.0 + 18.0 * 18.0 + 27.0 * 27.0);
    const double height = distance * 42.0 / (std::sqrt(1.5 * 1.5 + 1.0) * 35.0);
    move();
    EXPECT_DOUBLE_EQ(shown("height"), height);
    EXPECT_DOUBLE_EQ(shown("width"), height * 1.5);
    EXPECT_DOUBLE_EQ(shown("lens"), 35.0);
}

TEST_F(LensViewTest, EyeTargetUpAndPerspectiveStay) {
    move();
    EXPECT_EQ(db("viewports.current.eye"), workbench::Value(workbench::Value::List{10., 20., 30.}));
    EXPECT_EQ(db("viewports.current.target"), workbench::Value(workbench::Value::List{1., 2., 3.}));
    EXPECT_EQ(db("viewports.current.up"), workbench::Value(workbench::Value::List{0., 0.6, 0.8}));
    EXPECT_EQ(db("viewports.current.perspective"), workbench::Value(true));
}

TEST_F(LensViewTest, ParallelViewStaysParallel) {
    set(L"PERSPECTIVE", 0);
    move();
    EXPECT_EQ(db("viewports.current.perspective"), workbench::Value(false));
    EXPECT_DOUBLE_EQ(shown("lens"), 35.0);
}

TEST_F(LensViewTest, HostsListNoLongerShowsANamedView) {
    addView("Garden");
    type(L"-VIEW\nR\nGarden\n");
    ASSERT_FALSE(vxInternalGetCurVPAppliedView().isNull());
    move();
    EXPECT_TRUE(vxInternalGetCurVPAppliedView().isNull());
}

// No viewport

TEST_F(LensViewTest, WithoutAViewportNothingIsRecordedOrSet) {
    loseViewport();
    move();
    EXPECT_EQ(steps(), Calls{"vxedGetVar(\"CVPORT\")"});
}

TEST_F(LensViewTest, UnreadableViewportIsNone) {
    fail("vxedGetVar:CVPORT");
    move();
    EXPECT_EQ(steps(), Calls{"vxedGetVar(\"CVPORT\")"});
}

// While a navigation tool runs

class LensOfToolTest : public LensViewTest {
protected:
    void SetUp() override {
        LensViewTest::SetUp();
        startTool();
    }
};

TEST_F(LensOfToolTest, ModuleIsReachedByServiceFileAndFunctionAndTheHostIsToldAfterwards) {
    move();
    EXPECT_EQ(steps(), (Calls{"vxedGetVar(\"CVPORT\")", "vxgsWriteViewToUndoController(2)",
                              "OrbitInProgress()", "vxrxServiceIsRegistered(\"ZorqVmTools\")",
                              "GetModuleHandle(\"VxVmTools.qlx\")",
                              "GetProcAddress(\"VxVmTools.qlx\", \"navUpdateLensLength\")",
                              "vxedSendViewChanged()", "VxViewMgrDlg::viewComboClear()"}));
    EXPECT_DOUBLE_EQ(shown("lens"), 35.0);
}

TEST_F(LensOfToolTest, UnregisteredServiceEndsItBehindTheUndo) {
    fail("vxrxServiceIsRegistered");
    move();
    EXPECT_EQ(steps(), (Calls{"vxedGetVar(\"CVPORT\")", "vxgsWriteViewToUndoController(2)",
                              "OrbitInProgress()", "vxrxServiceIsRegistered(\"ZorqVmTools\")"}));
}

TEST_F(LensOfToolTest, ModuleThatIsNotLoadedEndsItBehindTheUndo) {
    bench().faults().hide("VxVmTools.qlx");
    move();
    EXPECT_EQ(steps(), (Calls{"vxedGetVar(\"CVPORT\")", "vxgsWriteViewToUndoController(2)",
                              "OrbitInProgress()", "vxrxServiceIsRegistered(\"ZorqVmTools\")",
                              "GetModuleHandle(\"VxVmTools.qlx\")"}));
    EXPECT_DOUBLE_EQ(shown("lens"), 50.0);
}

}  // namespace
