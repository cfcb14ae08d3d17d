#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/adapters/host_values.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/path_access.h"
#include "workbench/drawing/records/view.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/navigation/navigation_tool.h"

#include <hostapi/zorq/documents.h>
#include <hostapi/zorq/views.h>

namespace workbench {

class ViewFunctionsTest : public EditorTest {
protected:
    /// The number of a new drawing's only tile.
    static constexpr int kTile = 2;

    drawing::Database& data() { return editor().documents().current()->data(); }
    drawing::ObjectId viewport() { return drawing::activeViewport(data()); }
    const drawing::Viewport& shown() { return *data().look<drawing::Viewport>(viewport()); }
    /// A named view, which the viewport then shows.
    VxDbObjectId restoreNamed() {
        drawing::View view;
        view.name = "Tall";
        view.view.height = 500;
        const drawing::ObjectId id = data().add(view).id;
        drawing::Writing<drawing::Viewport> writing(data(), viewport());
        writing->view = view.view;
        writing->appliedView.id = id;
        return toHostId(id);
    }
};

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

TEST_F(ViewFunctionsTest, AViewsParametersGoBackToTheViewport) {
    newDocument();
    VxGsClassFactory* factory = vxgsGetGsManager(nullptr)->classFactory();
    VxGsView* view = factory->createView({kTile, vxedGetCurViewportObjectId()});
    view->setView({9, 0, 0}, {0, 0, 0}, {0, 0, 1}, 4, 2, true);
    events();
    EXPECT_NE(vxgsSetViewParameters(kTile, view, true, false, false), 0);
    EXPECT_EQ(events(), Lines{"view changed"});
    EXPECT_EQ(shown().view.eye.x, 9);
    EXPECT_EQ(vxgsSetViewParameters(99, view, true, false, false), 0);
    EXPECT_EQ(vxgsSetViewParameters(kTile, nullptr, true, false, false), 0);
    factory->deleteView(view);
    EXPECT_EQ(vxgsSetViewParameters(kTile, view, true, false, false), 0);
}

TEST_F(ViewFunctionsTest, TheLensIsTheViewports) {
    double lens = -1;
    EXPECT_EQ(vxgsGetLensLength(kTile, lens), 0);
    newDocument();
    EXPECT_NE(vxgsGetLensLength(kTile, lens), 0);
    EXPECT_EQ(lens, 50);
    EXPECT_NE(vxgsSetLensLength(kTile, 24), 0);
    EXPECT_EQ(shown().view.lens, 24);
    EXPECT_EQ(vxgsGetLensLength(99, lens), 0);
    EXPECT_EQ(vxgsSetLensLength(99, 28), 0);
    EXPECT_EQ(lens, 50);
}

TEST_F(ViewFunctionsTest, ARecordedViewIsOneUndo) {
    newDocument();
    for (const double lens : {24.0, 35.0}) {
        vxgsWriteViewToUndoController(kTile);
        vxgsSetLensLength(kTile, lens);
        VxGsView* view = vxgsGetGsView(kTile, true);
        view->setView({lens, 0, 1}, {0, 0, 0}, {0, 1, 0}, 4, 2, true);
        vxgsSetViewParameters(kTile, view, true, false, false);
    }
    EXPECT_TRUE(editor().undo());
    EXPECT_EQ(shown().view.lens, 24);
    EXPECT_EQ(shown().view.eye.x, 24);
    EXPECT_TRUE(editor().undo());
    EXPECT_EQ(shown().view, drawing::Viewport().view);
}

TEST_F(ViewFunctionsTest, AViewThatWasNotRecordedJoinsNoStep) {
    newDocument();
    vxgsWriteViewToUndoController(kTile);
    vxgsSetLensLength(kTile, 24);
    m_bench.faults().fail("vxgsWriteViewToUndoController");
    vxgsWriteViewToUndoController(kTile);
    m_bench.faults().unfail("vxgsWriteViewToUndoController");
    vxgsWriteViewToUndoController(99);
    vxgsSetLensLength(kTile, 35);
    EXPECT_TRUE(editor().undo());
    EXPECT_EQ(shown().view.lens, 24);
}

TEST_F(ViewFunctionsTest, TheHostIsToldAtOnce) {
    newDocument();
    events();
    vxedSendViewChanged();
    EXPECT_EQ(events(), Lines{"view changed"});
    m_bench.faults().fail("vxedSendViewChanged");
    vxedSendViewChanged();
    EXPECT_TRUE(events().empty());
}

TEST_F(ViewFunctionsTest, TheAppliedViewIsNoneOnceTheListIsCleared) {
    VxViewMgrDlg::viewComboClear();
    EXPECT_TRUE(vxInternalGetCurVPAppliedView().isNull());
    newDocument();
    EXPECT_TRUE(vxInternalGetCurVPAppliedView().isNull());
    const VxDbObjectId view = restoreNamed();
    EXPECT_EQ(vxInternalGetCurVPAppliedView(), view);
    m_bench.faults().fail("VxViewMgrDlg::viewComboClear");
    VxViewMgrDlg::viewComboClear();
    EXPECT_EQ(vxInternalGetCurVPAppliedView(), view);
    m_bench.faults().unfail("VxViewMgrDlg::viewComboClear");
    VxViewMgrDlg::viewComboClear();
    EXPECT_TRUE(vxInternalGetCurVPAppliedView().isNull());
    EXPECT_TRUE(shown().appliedView.id.isNull());
}

TEST_F(ViewFunctionsTest, ZoomsGoBackThroughTheEarlierViews) {
    vxInternalZoomBack();
    vxInternalZoomPrevious();
    EXPECT_FALSE(vxInternalIsCurVPZoomUndoAvailable());
    newDocument();
    EXPECT_FALSE(vxInternalIsCurVPZoomUndoAvailable());
    vxgsSetLensLength(kTile, 24);
    write(L"PERSPECTIVE", 1);
    EXPECT_TRUE(vxInternalIsCurVPZoomUndoAvailable());
    const VxAxDocLock lock(editor().documents().current()->database(), 1);
    vxInternalZoomPrevious();
    EXPECT_FALSE(shown().view.perspective);
    EXPECT_EQ(shown().view.lens, 24);
    vxInternalZoomBack();
    EXPECT_EQ(shown().view.lens, 50);
    EXPECT_FALSE(vxInternalIsCurVPZoomUndoAvailable());
    vxInternalZoomBack();
    EXPECT_EQ(shown().view.lens, 50);
}

TEST_F(ViewFunctionsTest, ANamedViewIsAppliedAgainAfterAStepBack) {
    newDocument();
    const VxDbObjectId view = restoreNamed();
    vxgsSetLensLength(kTile, 24);
    EXPECT_TRUE(vxInternalGetCurVPAppliedView().isNull());
    const VxAxDocLock lock(editor().documents().current()->database(), 1);
    vxInternalZoomPrevious();
    EXPECT_EQ(vxInternalGetCurVPAppliedView(), view);
    m_bench.faults().fail("vxInternalGetCurVPAppliedView");
    EXPECT_TRUE(vxInternalGetCurVPAppliedView().isNull());
}

TEST_F(ViewFunctionsTest, FaultsGiveNothingAndChangeNothing) {
    newDocument();
    VxGsView* view = vxgsGetGsView(kTile, true);
    write(L"PERSPECTIVE", 1);
    for (const char* call :
         {"vxgsGetGsManager", "vxgsGetGsView", "vxgsGetViewParameters", "vxgsSetViewParameters",
          "vxgsGetLensLength", "vxgsSetLensLength", "vxInternalIsCurVPZoomUndoAvailable",
          "vxInternalZoomPrevious", "vxInternalZoomBack"})
        m_bench.faults().fail(call);
    EXPECT_EQ(vxgsGetGsManager(nullptr), nullptr);
    EXPECT_EQ(vxgsGetGsView(kTile, true), nullptr);
    EXPECT_EQ(vxgsGetViewParameters(kTile, view), 0);
    EXPECT_EQ(vxgsSetViewParameters(kTile, view, true, false, false), 0);
    double lens = -1;
    EXPECT_EQ(vxgsGetLensLength(kTile, lens), 0);
    EXPECT_EQ(lens, -1);
    EXPECT_EQ(vxgsSetLensLength(kTile, 24), 0);
    EXPECT_FALSE(vxInternalIsCurVPZoomUndoAvailable());
    vxInternalZoomPrevious();
    vxInternalZoomBack();
    EXPECT_TRUE(shown().view.perspective);
    EXPECT_EQ(shown().view.lens, 50);
}

TEST_F(ViewFunctionsTest, PreviousTakesTheLastChangeBackAndBackTheLastZoom) {
    newDocument();
    const VxAxDocLock lock(editor().documents().current()->database(), 1);
    const auto moveAround = [this] {
        vxgsSetLensLength(kTile, 24);
        write(L"PERSPECTIVE", 1);
    };
    moveAround();
    vxInternalZoomPrevious();
    EXPECT_FALSE(shown().view.perspective);
    EXPECT_EQ(shown().view.lens, 24);
    write(L"PERSPECTIVE", 1);
    vxInternalZoomBack();
    EXPECT_FALSE(shown().view.perspective);
    EXPECT_EQ(shown().view.lens, 50);
    write(L"PERSPECTIVE", 1);
    vxInternalZoomBack();
    EXPECT_TRUE(shown().view.perspective);
}

TEST_F(ViewFunctionsTest, InALockedViewportThereIsNoViewToGoBackTo) {
    Document& document = newDocument();
    const VxAxDocLock lock(document.database(), 1);
    vxgsSetLensLength(kTile, 24);
    drawing::setByPath(document.data(), "viewports.current.locked", true);
    EXPECT_FALSE(vxInternalIsCurVPZoomUndoAvailable());
    vxInternalZoomPrevious();
    vxInternalZoomBack();
    EXPECT_EQ(shown().view.lens, 24);
    drawing::setByPath(document.data(), "viewports.current.locked", false);
    EXPECT_TRUE(vxInternalIsCurVPZoomUndoAvailable());
}

TEST_F(ViewFunctionsTest, WithoutALockNoViewIsSteppedBack) {
    newDocument();
    vxgsSetLensLength(kTile, 24);
    vxInternalZoomPrevious();
    vxInternalZoomBack();
    EXPECT_EQ(shown().view.lens, 24);
    EXPECT_TRUE(vxInternalIsCurVPZoomUndoAvailable());
}

}  // namespace workbench
