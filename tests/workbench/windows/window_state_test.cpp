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

/// A control with its parts, whose changes the journal shows.
class ControlChangesTest : public WindowTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(make(control) && make(icon, &control));
        ASSERT_TRUE(make(slider, &control, 1, nullptr, "CQrUiProgSliderCtrl"));
        ASSERT_TRUE(makeEdit(edit, icon, 2) && makeEdit(edit2, control, 3));
        windows().setName(control.m_hWnd, "FadeSlider");
        journal().take();
    }
    /// The changes since the last call, as "name field old new" lines.
    std::vector<std::string> changes() {
        std::vector<std::string> lines;
        for (const JournalRecord& record : journal().take("control"))
            lines.push_back(record.field("name").asString() + " " +
                            record.field("field").asString() + " " +
                            record.field("old").describe() + " " + record.field("new").describe());
        return lines;
    }

    CWnd control;
    CWnd icon;
    CWnd slider;
    CWnd edit;
    CWnd edit2;
};

using Lines = std::vector<std::string>;

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

TEST_F(WindowStateTest, TheObserverHearsOfChangesAndRepaints) {
    std::vector<HWND> told;
    windows().setObserver([&told](HWND changed) { told.push_back(changed); });
    window.SetWindowText(L"text");
    window.SetWindowText(L"text");
    EXPECT_EQ(told.size(), 1U);
    window.Invalidate();
    EXPECT_EQ(told, (std::vector<HWND>{window.m_hWnd, window.m_hWnd}));
    EXPECT_EQ(window.GetWindowText(), L"text");
    windows().setObserver(nullptr);
}

TEST_F(WindowStateTest, ACallThatIsToldToFailChangesNothing) {
    Workbench::current().faults().fail("CWnd::EnableWindow");
    window.EnableWindow(0);
    EXPECT_TRUE(windows().takesInput(window.m_hWnd));
    Workbench::current().faults().unfail("CWnd::EnableWindow");
    window.EnableWindow(0);
    EXPECT_FALSE(windows().takesInput(window.m_hWnd));
}

TEST_F(ControlChangesTest, TheControlsOwnChangesBearTheirField) {
    control.EnableWindow(0);
    control.ShowWindow(SW_HIDE);
    control.SetWindowText(L"caption");
    EXPECT_EQ(changes(), (Lines{"FadeSlider enabled true false", "FadeSlider visible true false",
                                "FadeSlider text \"\" \"caption\""}));
}

TEST_F(ControlChangesTest, PartsAreNamedByKindAndNumber) {
    edit.SetWindowText(L"40%");
    edit2.SetWindowText(L"50%");
    slider.EnableWindow(0);
    edit2.ShowWindow(SW_HIDE);
    EXPECT_EQ(changes(), (Lines{"FadeSlider edit \"\" \"40%\"", "FadeSlider edit2 \"\" \"50%\"",
                                "FadeSlider slider.enabled true false",
                                "FadeSlider edit2.visible true false"}));
}

TEST_F(ControlChangesTest, APositionIsTheSlidersValue) {
    windows().noteChange(slider.m_hWnd, "position", 30, 40);
    windows().noteChange(slider.m_hWnd, "position", 40, 40);
    EXPECT_EQ(changes(), Lines{"FadeSlider slider 30 40"});
}

TEST_F(ControlChangesTest, AWindowThatStandsInNoNamedOneIsNotNoted) {
    CWnd alone;
    ASSERT_TRUE(make(alone));
    alone.EnableWindow(0);
    EXPECT_EQ(changes(), Lines{});
}

}  // namespace workbench
