#include "module/manager.h"
#include "module/module.h"
#include "tests/palette/dashboard_fixture.h"
#include "tests/support/answer_in_place.h"
#include "workbench/editor/editor.h"

#include <hostapi/vxdashboard.h>
#include <hostapi/zorq/frame_windows.h>

namespace {

using Names = std::vector<std::string>;

/// Notes what the bar's listeners are told.
class Listener final : public VxDaDashboardReactor {
public:
    void panelsWillUnload() override {}
    void panelsUnloaded() override {}
    void panelsWillLoad() override {}
    void panelsLoaded() override {}
    void controlsWillBeReleased() override {}
    void visibilityChanged(BOOL visible) override { told.push_back(visible); }

    std::vector<BOOL> told;
};

TEST_F(DashboardTest, TheUsersClosingAndShowingReachesTheListeners) {
    show();
    Listener listener;
    dashboardManager()->addOrRemoveReactor(&listener, true);
    dashboard().ShowWindow(SW_HIDE);
    dashboard().ShowWindow(SW_SHOW);
    dashboard().SetWindowPos(0, 0, 300, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(listener.told, (std::vector<BOOL>{0, 1}));
    dashboardManager()->addOrRemoveReactor(&listener, false);
}

TEST_F(DashboardTest, ShowsAndHidesThroughTheFrame) {
    show();
    EXPECT_EQ(dashboard().show(0), 1);
    EXPECT_EQ(dashboard().GetStyle() & WS_VISIBLE, 0U);
    EXPECT_EQ(dashboard().show(1), 1);
    EXPECT_NE(dashboard().GetStyle() & WS_VISIBLE, 0U);
    EXPECT_EQ(takeLines({"CFrameWnd::ShowControlBar"}),
              (Names{"CFrameWnd::ShowControlBar(object, 0, 0)",
                     "CFrameWnd::ShowControlBar(object, 1, 0)"}));
}

TEST_F(DashboardTest, WithoutAFrameShowsAndHidesNothing) {
    show();
    fail("vxedGetZorqFrame", 2);
    EXPECT_EQ(dashboard().show(0), 0);
    EXPECT_EQ(dashboard().show(1), 0);
    EXPECT_TRUE(hasVisibleStyle());
    EXPECT_EQ(callCount("CFrameWnd::ShowControlBar"), 0);
}

TEST_F(DashboardTest, FloatingInAFrameOfItsOwnShowsAndHidesToo) {
    show();
    frame().floatAt(dashboard(), {100, 100, 340, 500});
    EXPECT_EQ(dashboard().show(0), 1);
    EXPECT_FALSE(hasVisibleStyle());
    EXPECT_EQ(dashboard().show(1), 1);
    EXPECT_TRUE(hasVisibleStyle());
}

TEST_F(DashboardTest, IsToldToTheListenersOnceTheToolkitKnowsAndGivesItsAnswer) {
    show();
    Listener listener;
    dashboardManager()->addOrRemoveReactor(&listener, true);
    const support::AnswerInPlace toolkit(bench().windows(), dashboard().m_hWnd, WM_WINDOWPOSCHANGED,
                                         7);
    const auto change = [this](UINT flags) {
        const WINDOWPOS position{dashboard().m_hWnd, 0, 0, 0, 0, flags};
        return dashboard().SendMessage(WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&position));
    };
    EXPECT_EQ(change(0), 7);
    EXPECT_EQ(change(SWP_NOMOVE | SWP_NOZORDER), 7);
    EXPECT_TRUE(listener.told.empty());
    EXPECT_EQ(change(SWP_HIDEWINDOW), 7);
    EXPECT_EQ(change(SWP_SHOWWINDOW), 7);
    EXPECT_EQ(change(SWP_SHOWWINDOW | SWP_HIDEWINDOW), 7);
    EXPECT_EQ(listener.told, (std::vector<BOOL>{0, 1, 1}));
    dashboardManager()->addOrRemoveReactor(&listener, false);
}

/// A bar that floats without a frame around it, because the toolkit never placed it.
class FramelessBarTest : public DashboardTest {
protected:
    void showFrameless() {
        load();
        fail("CQrUiDockControlBar::RestoreControlBar");
        showLoaded();
        bench().toolkit().paletteSets().of(&dashboard()).place.floating = true;
        ASSERT_TRUE(dashboard().IsFloating());
        ASSERT_EQ(dashboard().GetDockingFrame(), nullptr);
        ASSERT_EQ(dynamic_cast<CDockBar*>(dashboard().GetParent()), nullptr);
    }
};

TEST_F(FramelessBarTest, IsLeftHiddenByTheShowStep) {
    showFrameless();
    dashboard().ShowWindow(SW_HIDE);
    dashboardManager()->onShowCommand();
    EXPECT_FALSE(hasVisibleStyle());
    EXPECT_EQ(callCount("CFrameWnd::ShowControlBar"), 0);
}

TEST_F(FramelessBarTest, IsLeftOnShowByTheHideStep) {
    showFrameless();
    ASSERT_TRUE(bench().editor().set(L"CleanScreenState", 1));
    EXPECT_TRUE(hasVisibleStyle());
    EXPECT_EQ(callCount("CFrameWnd::ShowControlBar"), 0);
}

TEST_F(FramelessBarTest, AnswersZeroToShowAndHide) {
    showFrameless();
    EXPECT_EQ(dashboard().show(1), 0);
    EXPECT_EQ(dashboard().show(0), 0);
    EXPECT_EQ(callCount("CFrameWnd::ShowControlBar"), 0);
}

TEST_F(FramelessBarTest, AsksForTheContentsHeightPlusThirteenAsItStandsInNoDockBar) {
    showFrameless();
    dashboard().resizeToContent({200, 120});
    EXPECT_NE(lastCall("QrUiResizeControlBarVerticalSize").find("[133]"), std::string::npos);
    EXPECT_EQ(callCount("CWnd::SetWindowPos"), 0);
}

TEST_F(DashboardTest, AnAnchoredBarIsNeverResizedByItsContent) {
    show();
    ASSERT_TRUE(frame().anchor(dashboard(), true));
    forget();
    dashboard().resizeToContent({200, 120});
    EXPECT_EQ(callCount("QrUiResizeControlBarVerticalSize"), 0);
    EXPECT_EQ(callCount("CWnd::SetWindowPos"), 0);
}

TEST_F(DashboardTest, AFloatingBarFollowsTheContentsHeightKeepingItsWidth) {
    show();
    frame().floatAt(dashboard(), {100, 100, 340, 500});
    const CRect before = dashboard().GetParentFrame()->GetWindowRect();
    forget();
    dashboard().resizeToContent({200, 120});
    const Names calls = takeLines({"CWnd::SetWindowPos", "QrUiResizeControlBarVerticalSize"});
    ASSERT_FALSE(calls.empty());
    EXPECT_EQ(Names{calls.front()}, Names{"CWnd::SetWindowPos(\"FloatingFrame\", 0, 0, " +
                                          std::to_string(before.Width()) + ", 120, 22)"});
    const CRect after = dashboard().GetParentFrame()->GetWindowRect();
    EXPECT_EQ(after.Width(), before.Width());
    EXPECT_EQ(after.Height(), 120);
    EXPECT_EQ(after.left, before.left);
    EXPECT_EQ(after.top, before.top);
}

TEST_F(DashboardTest, ADockedBarAsksForTheContentsHeightPlusThirteen) {
    show();
    dashboard().resizeToContent({200, 120});
    EXPECT_EQ(takeLines({"QrUiResizeControlBarVerticalSize"}),
              Names{"QrUiResizeControlBarVerticalSize(133)"});
    EXPECT_EQ(bench().toolkit().paletteSets().of(&dashboard()).dockedHeight, 133)
        << "it is asked for under the bar's own tool";
}

}  // namespace
