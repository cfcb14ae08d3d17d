#include "tests/workbench/windows/window_fixture.h"

namespace workbench {

namespace {

/// Keeps the last `WM_WINDOWPOSCHANGED`.
class PlacedWindow : public TestWindow {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_WINDOWPOSCHANGED)
            record = *reinterpret_cast<const WINDOWPOS*>(lParam);
        return TestWindow::WindowProc(message, wParam, lParam);
    }
    WINDOWPOS record{};
};

class WindowStateTest : public WindowTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(make(window));
        window.got.clear();
    }

    PlacedWindow window;
};

}  // namespace

TEST_F(WindowStateTest, ShowingAndHidingAreToldOnceEach) {
    window.ShowWindow(SW_SHOW);
    EXPECT_EQ(window.count(WM_WINDOWPOSCHANGED), 0);
    window.ShowWindow(SW_HIDE);
    window.ShowWindow(SW_HIDE);
    EXPECT_EQ(window.count(WM_WINDOWPOSCHANGED), 1);
    EXPECT_EQ(window.record.flags & (SWP_SHOWWINDOW | SWP_HIDEWINDOW), SWP_HIDEWINDOW);
    EXPECT_EQ(window.GetStyle() & WS_VISIBLE, 0U);
    window.ShowWindow(SW_SHOW);
    EXPECT_EQ(window.record.flags & (SWP_SHOWWINDOW | SWP_HIDEWINDOW), SWP_SHOWWINDOW);
    EXPECT_NE(window.GetStyle() & WS_VISIBLE, 0U);
}

TEST_F(WindowStateTest, AWindowInAHiddenParentIsNotOnScreen) {
    CWnd child;
    ASSERT_TRUE(make(child, &window));
    EXPECT_TRUE(child.IsWindowVisible());
    window.ShowWindow(SW_HIDE);
    EXPECT_FALSE(child.IsWindowVisible());
    EXPECT_NE(child.GetStyle() & WS_VISIBLE, 0U);
}

TEST_F(WindowStateTest, SizingSendsTheSizeAndThenThePlace) {
    window.MoveWindow({1, 2, 301, 402});
    ASSERT_EQ(window.got.size(), 2U);
    EXPECT_EQ(window.got[0], (Got{WM_SIZE, 0, static_cast<LPARAM>(MAKELONG(300, 400))}));
    EXPECT_EQ(window.got[1].message, WM_WINDOWPOSCHANGED);
    EXPECT_EQ(window.record.x, 1);
    EXPECT_EQ(window.record.cy, 400);
    EXPECT_EQ(window.record.flags & (SWP_NOSIZE | SWP_NOMOVE), 0U);
}

TEST_F(WindowStateTest, MovingAloneSendsNoSize) {
    window.SetWindowPos(5, 6, 0, 0, SWP_NOSIZE);
    EXPECT_EQ(window.count(WM_SIZE), 0);
    EXPECT_EQ(window.count(WM_WINDOWPOSCHANGED), 1);
    EXPECT_EQ(window.GetWindowRect(), (CRect{5, 6, 105, 56}));
}

TEST_F(WindowStateTest, SizingAloneKeepsThePlace) {
    window.SetWindowPos(5, 6, 30, 40, SWP_NOMOVE);
    EXPECT_EQ(window.GetWindowRect(), (CRect{10, 20, 40, 60}));
}

TEST_F(WindowStateTest, APlaceThatIsTheOldOneSendsNothing) {
    window.MoveWindow({10, 20, 110, 70});
    EXPECT_TRUE(window.got.empty());
}

TEST_F(WindowStateTest, ANegativeWidthCountsAsZero) {
    window.SetWindowPos(0, 0, -5, -1, 0);
    EXPECT_EQ(window.GetClientRect(), (CRect{0, 0, 0, 0}));
}

TEST_F(WindowStateTest, PlacingMayShowAndHide) {
    window.SetWindowPos(0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_HIDEWINDOW);
    EXPECT_FALSE(window.IsWindowVisible());
    EXPECT_NE(window.record.flags & SWP_HIDEWINDOW, 0U);
    window.SetWindowPos(0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_SHOWWINDOW);
    EXPECT_TRUE(window.IsWindowVisible());
}

TEST_F(WindowStateTest, AWindowMayEndWhileItIsSized) {
    window.onMessage = [this](UINT message) {
        if (message == WM_SIZE)
            window.DestroyWindow();
    };
    window.MoveWindow({0, 0, 1, 1});
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.count(WM_SIZE), 1);
}

TEST_F(WindowStateTest, ACallThatIsToldToFailChangesNothing) {
    Workbench::current().faults().fail("CWnd::EnableWindow");
    window.EnableWindow(0);
    EXPECT_TRUE(windows().takesInput(window.m_hWnd));
    Workbench::current().faults().unfail("CWnd::EnableWindow");
    window.EnableWindow(0);
    EXPECT_FALSE(windows().takesInput(window.m_hWnd));
}

}  // namespace workbench
