#include "workbench/toolkit/main_frame.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/toolkit/floating_frame.h"

#include <hostapi/zorq/frame_windows.h>

namespace workbench {
namespace {

using testing::ElementsAre;

class MainFrameTest : public ToolkitTest {
protected:
    int viewWidth() { return frame().drawingView().GetClientRect().Width(); }
    CDockBar* dockBarOf(const CWnd& set) { return dynamic_cast<CDockBar*>(set.GetParent()); }
};

TEST_F(MainFrameTest, TheFrameHasADrawingViewAndACommandLine) {
    EXPECT_EQ(AfxGetMainWnd(), &frame().frame());
    EXPECT_EQ(vxedGetZorqFrame(), &frame().frame());
    EXPECT_EQ(vxedGetZorqDwgView()->m_hWnd, windows().findByName("DrawingView"));
    EXPECT_EQ(vxedGetZorqDockCmdLine()->m_hWnd, windows().findByName("CommandLine"));
}

TEST_F(MainFrameTest, EachOfThemCanBeMissing) {
    for (const char* call :
         {"AfxGetMainWnd", "vxedGetZorqFrame", "vxedGetZorqDwgView", "vxedGetZorqDockCmdLine"})
        m_workbench.faults().fail(call);
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
    EXPECT_EQ(vxedGetZorqFrame(), nullptr);
    EXPECT_EQ(vxedGetZorqDwgView(), nullptr);
    EXPECT_EQ(vxedGetZorqDockCmdLine(), nullptr);
}

TEST_F(MainFrameTest, AShownSetTakesItsWidthFromTheDrawingView) {
    EXPECT_EQ(viewWidth(), 1280 - 235);
    frame().frame().ShowControlBar(m_set.get(), 0, 0);
    EXPECT_EQ(viewWidth(), 1280);
}

TEST_F(MainFrameTest, DelayedShowingLeavesTheLayoutForLater) {
    frame().frame().ShowControlBar(m_set.get(), 0, 1);
    EXPECT_FALSE(m_set->IsWindowVisible());
    EXPECT_EQ(viewWidth(), 1280 - 235);
    frame().layout();
    EXPECT_EQ(viewWidth(), 1280);
}

TEST_F(MainFrameTest, RestoringOnlyPlaces) {
    Listening<CQrUiPaletteSet> other(0U);
    other.Create(L"Other", 0, {50, 50, 150, 350}, &frame().frame(), 0);
    EXPECT_EQ(other.GetDockingFrame(), nullptr);
    other.RestoreControlBar(kLeftDockBar, {50, 50, 150, 350});
    EXPECT_FALSE(other.IsWindowVisible());
    EXPECT_EQ(other.GetDockingFrame(), &frame().frame());
    EXPECT_EQ(other.GetClientRect(), (CRect{0, 0, 100, 740}));
}

TEST_F(MainFrameTest, RestoringPutsASetWhereItsToolWasLast) {
    frame().floatAt(*m_set, {10, 20, 310, 420});
    m_set.reset();
    Listening<CQrUiPaletteSet> again(0U);
    again.SetToolID(kTool);
    again.Create(L"Again", 0, {50, 50, 285, 350}, &frame().frame(), 0);
    again.RestoreControlBar(kRightDockBar, {50, 50, 285, 350});
    EXPECT_TRUE(again.IsFloating());
    EXPECT_EQ(frame().placeOf(again).rect, (CRect{10, 20, 310, 420}));
}

TEST_F(MainFrameTest, ASetIsNotRestoredAtAnEdgeWhereItMayNotDock) {
    frame().dock(*m_set, Edge::Left);
    m_set.reset();
    Listening<CQrUiPaletteSet> again(0U);
    again.SetToolID(kTool);
    again.Create(L"Again", 0, {50, 50, 285, 350}, &frame().frame(), 0);
    again.EnableDocking(0x4000);
    again.RestoreControlBar(kRightDockBar, {50, 50, 285, 350});
    EXPECT_EQ(frame().placeOf(again).edge, Edge::Right);
}

TEST_F(MainFrameTest, ASetThatGoesWhileTheSetsAreVisitedIsLeftOut) {
    auto other = std::make_unique<Listening<CQrUiPaletteSet>>(0U);
    other->Create(L"Other", 0, {50, 50, 150, 350}, &frame().frame(), 0);
    std::vector<CQrUiPaletteSet*> visited;
    frame().forEachBar([&](CQrUiPaletteSet& set) { visited.push_back(&set); });
    EXPECT_THAT(visited, ElementsAre(m_set.get(), other.get()));
    visited.clear();
    frame().forEachBar([&](CQrUiPaletteSet& set) {
        visited.push_back(&set);
        other.reset();
    });
    EXPECT_THAT(visited, ElementsAre(m_set.get()));
}

TEST_F(MainFrameTest, ASetMayHaveNoFrame) {
    frame().floatAt(*m_set, {10, 20, 310, 420});
    m_workbench.faults().fail("CControlBar::GetDockingFrame");
    EXPECT_EQ(m_set->GetDockingFrame(), nullptr);
}

TEST_F(MainFrameTest, AFloatingSetStandsInADockBarOfASmallFrame) {
    frame().floatAt(*m_set, {10, 20, 310, 420});
    EXPECT_TRUE(m_set->IsFloating());
    ASSERT_NE(dockBarOf(*m_set), nullptr);
    EXPECT_EQ(m_set->GetParentFrame(), m_set->GetDockingFrame());
    EXPECT_NE(m_set->GetDockingFrame(), &frame().frame());
    EXPECT_TRUE(m_set->IsWindowVisible());
    EXPECT_EQ(viewWidth(), 1280);
}

TEST_F(MainFrameTest, TheSmallFramesNewHeightReachesThePalette) {
    frame().floatAt(*m_set, {10, 20, 310, 420});
    m_set->GetDockingFrame()->SetWindowPos(0, 0, 300, 200, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(m_palette->GetClientRect().Height(), 200 - m_set->GetNonClientSize().cy);
    EXPECT_EQ(frame().placeOf(*m_set).rect, (CRect{10, 20, 310, 220}));
}

TEST_F(MainFrameTest, HidingAFloatingSetHidesItsSmallFrame) {
    frame().floatAt(*m_set, {10, 20, 310, 420});
    CFrameWnd* const small = m_set->GetDockingFrame();
    frame().frame().ShowControlBar(m_set.get(), 0, 0);
    EXPECT_FALSE(small->IsWindowVisible());
    frame().frame().ShowControlBar(m_set.get(), 1, 0);
    EXPECT_TRUE(m_set->IsWindowVisible());
}

TEST_F(MainFrameTest, DockingAgainEndsTheSmallFrame) {
    const std::size_t before = windows().count();
    frame().floatAt(*m_set, {10, 20, 310, 420});
    EXPECT_EQ(windows().count(), before + 2);
    EXPECT_TRUE(frame().dock(*m_set, Edge::Right));
    EXPECT_EQ(windows().count(), before);
    EXPECT_FALSE(m_set->IsFloating());
}

TEST_F(MainFrameTest, OnlyAllowedEdgesDock) {
    m_set->EnableDocking(0x4000);
    EXPECT_FALSE(frame().dock(*m_set, Edge::Left));
    EXPECT_TRUE(frame().dock(*m_set, Edge::Right));
    m_set->EnableDocking(0x1000);
    EXPECT_TRUE(frame().dock(*m_set, Edge::Left));
    EXPECT_FALSE(frame().anchor(*m_set, false) && frame().dock(*m_set, Edge::Right));
}

TEST_F(MainFrameTest, AnAnchoredSetIsAThinStripUntilItRollsOut) {
    EXPECT_TRUE(frame().anchor(*m_set, true));
    EXPECT_TRUE(m_set->Anchored());
    EXPECT_EQ(m_set->GetClientRect().Width(), 24);
    EXPECT_FALSE(m_palette->IsWindowVisible());
    frame().rollOut(*m_set, true);
    EXPECT_TRUE(m_palette->IsWindowVisible());
    EXPECT_EQ(m_set->GetClientRect().Width(), 235);
    frame().rollOut(*m_set, false);
    EXPECT_FALSE(m_palette->IsWindowVisible());
    EXPECT_TRUE(frame().anchor(*m_set, false));
    EXPECT_FALSE(m_set->Anchored());
    EXPECT_TRUE(m_palette->IsWindowVisible());
}

TEST_F(MainFrameTest, ADockedSetGetsTheHeightItsToolAsksFor) {
    QrUiResizeControlBarVerticalSize(kTool, 313);
    EXPECT_EQ(m_set->GetClientRect().Height(), 313);
    QrUiResizeControlBarVerticalSize(kTool, 5000);
    EXPECT_EQ(m_set->GetClientRect().Height(), 740);
    QrUiResizeControlBarVerticalSize(GUID{}, 313);
    EXPECT_EQ(m_set->GetClientRect().Height(), 740);
}

TEST_F(MainFrameTest, PalettesLimitAFloatingSet) {
    m_palette->minimum = {400, 0};
    m_palette->maximum = {-1, 250};
    frame().floatAt(*m_set, {0, 0, 300, 300});
    EXPECT_EQ(frame().placeOf(*m_set).rect, (CRect{0, 0, 400, 250}));
}

TEST_F(MainFrameTest, PalettesLimitADockedSet) {
    m_palette->minimum = {300, 0};
    frame().layout();
    EXPECT_EQ(m_set->GetClientRect().Width(), 300);
}

TEST_F(MainFrameTest, ASetThatEndsWhileItFloatsTakesItsFrameAlong) {
    frame().floatAt(*m_set, {10, 20, 310, 420});
    const std::size_t tops = windows().topWindows().size();
    m_set.reset();
    EXPECT_EQ(windows().topWindows().size(), tops - 1);
}

TEST_F(MainFrameTest, AnIdleTickReachesEachSet) {
    toolkit().idleUpdate();
    EXPECT_THAT(m_set->of(WM_IDLEUPDATECMDUI), ElementsAre(Received{WM_IDLEUPDATECMDUI, 0, 0}));
}

}  // namespace
}  // namespace workbench
