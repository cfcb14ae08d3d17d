#include "controls/view_state.h"

#include "tests/palette/palette_fixture.h"
#include "workbench/editor/editor.h"
#include "workbench/navigation/navigation_tool.h"

#include <hostapi/zorq/views.h>

namespace {

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
    std::size_t temporaryViews() { return bench().navigation().graphics().temporaryCount(); }
};

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
