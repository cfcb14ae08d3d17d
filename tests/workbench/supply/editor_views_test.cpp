#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/lookup.h"
#include "workbench/navigation/navigation_tool.h"

#include <hostapi/zorq/views.h>

namespace workbench {

using ViewFunctionsTest = EditorTest;

TEST_F(ViewFunctionsTest, OrbitIsInProgressWhileTheToolRuns) {
    CTool* tool = nullptr;
    EXPECT_FALSE(OrbitInProgress(tool));
    m_bench.navigation().start(NavigationTool::kPan);
    EXPECT_TRUE(OrbitInProgress(tool));
    EXPECT_EQ(tool, m_bench.navigation().tool());
}

TEST_F(ViewFunctionsTest, AFaultHidesTheToolOrAllOfTheOrbit) {
    m_bench.navigation().start(NavigationTool::kPan);
    CTool* tool = m_bench.navigation().tool();
    m_bench.faults().fail("OrbitInProgress", 1);
    EXPECT_TRUE(OrbitInProgress(tool));
    EXPECT_EQ(tool, nullptr);
    m_bench.faults().fail("OrbitInProgress");
    EXPECT_FALSE(OrbitInProgress(tool));
}

TEST_F(ViewFunctionsTest, TheActiveViewportHasAnId) {
    EXPECT_TRUE(vxedActiveViewportId().isNull());
    EXPECT_TRUE(vxedGetCurViewportObjectId().isNull());
    Document& document = newDocument();
    const VxDbObjectId id = toHostId(drawing::activeViewport(document.data()));
    EXPECT_EQ(vxedActiveViewportId(), id);
    EXPECT_EQ(vxedGetCurViewportObjectId(), id);
    m_bench.faults().fail("vxedActiveViewportId");
    m_bench.faults().fail("vxedGetCurViewportObjectId");
    EXPECT_TRUE(vxedActiveViewportId().isNull());
    EXPECT_TRUE(vxedGetCurViewportObjectId().isNull());
}

TEST_F(ViewFunctionsTest, ATemporaryViewTakesTheViewportsParameters) {
    newDocument();
    write(L"PERSPECTIVE", 1);
    EXPECT_EQ(vxgsGetGsView(2, false), nullptr);
    VxGsClassFactory* factory = vxgsGetGsManager(nullptr)->classFactory();
    VxGsView* view = factory->createView({2, vxedGetCurViewportObjectId()});
    EXPECT_NE(vxgsGetViewParameters(2, view), 0);
    EXPECT_TRUE(view->isPerspective());
    factory->deleteView(view);
    EXPECT_EQ(m_bench.navigation().graphics().temporaryCount(), 0U);
}

TEST_F(ViewFunctionsTest, FaultsGiveNothing) {
    newDocument();
    for (const char* call : {"vxgsGetGsManager", "vxgsGetGsView", "vxgsGetViewParameters"})
        m_bench.faults().fail(call);
    EXPECT_EQ(vxgsGetGsManager(nullptr), nullptr);
    EXPECT_EQ(vxgsGetGsView(2, true), nullptr);
    EXPECT_EQ(vxgsGetViewParameters(2, nullptr), 0);
}

}  // namespace workbench
