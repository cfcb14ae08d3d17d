#include "tests/workbench/windows/window_fixture.h"

namespace workbench {

namespace {

class WindowTreeTest : public WindowTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(make(frame) && make(middle, &frame) && make(leaf, &middle));
        ASSERT_TRUE(make(sibling, &frame));
    }

    CFrameWnd frame;
    CWnd middle;
    CWnd leaf;
    CWnd sibling;
};

}  // namespace

TEST_F(WindowTreeTest, ScreenCoordinatesAddUpTheParents) {
    EXPECT_EQ(leaf.GetWindowRect(), (CRect{30, 60, 130, 110}));
    EXPECT_EQ(leaf.ScreenToClient({31, 62}), (CPoint{1, 2}));
    EXPECT_EQ(leaf.GetClientRect(), (CRect{0, 0, 100, 50}));
}

TEST_F(WindowTreeTest, TheNearestFrameAboveIsFound) {
    EXPECT_EQ(leaf.GetParentFrame(), &frame);
    EXPECT_EQ(frame.GetParentFrame(), nullptr);
}

TEST_F(WindowTreeTest, AWindowlessObjectAnswersNothing) {
    const CWnd none;
    EXPECT_EQ(none.GetParent(), nullptr);
    EXPECT_EQ(none.GetParentFrame(), nullptr);
    EXPECT_EQ(none.GetDlgCtrlID(), 0);
    EXPECT_EQ(none.GetStyle(), 0U);
    EXPECT_EQ(none.GetWindowText(), L"");
    EXPECT_EQ(none.GetWindowRect(), CRect{});
    EXPECT_FALSE(none.IsWindowVisible());
}

TEST_F(WindowTreeTest, DescendantsComeDepthFirst) {
    EXPECT_EQ(windows().descendants(frame.m_hWnd),
              (std::vector<HWND>{middle.m_hWnd, leaf.m_hWnd, sibling.m_hWnd}));
    EXPECT_TRUE(windows().isWithin(leaf.m_hWnd, frame.m_hWnd));
    EXPECT_FALSE(windows().isWithin(sibling.m_hWnd, middle.m_hWnd));
}

TEST_F(WindowTreeTest, TheNthWindowOfANameIsFoundBelowARoot) {
    windows().setName(leaf.m_hWnd, "Twin");
    windows().setName(sibling.m_hWnd, "Twin");
    EXPECT_EQ(windows().findByName("Twin"), leaf.m_hWnd);
    EXPECT_EQ(windows().findByName("Twin", 1), sibling.m_hWnd);
    EXPECT_EQ(windows().findByName("Twin", 2), nullptr);
    EXPECT_EQ(windows().findByName("Twin", 1, middle.m_hWnd), nullptr);
    EXPECT_EQ(windows().findByName("Twin", 0, leaf.m_hWnd), leaf.m_hWnd);
}

TEST_F(WindowTreeTest, TheOwnerIsTheNearestNamedWindow) {
    windows().setName(middle.m_hWnd, "Middle");
    EXPECT_EQ(windows().ownerName(leaf.m_hWnd), "Middle");
    EXPECT_EQ(windows().ownerName(middle.m_hWnd), "Middle");
    EXPECT_EQ(windows().ownerName(sibling.m_hWnd), "");
}

TEST_F(WindowTreeTest, AWindowCanBePutInItsPlaceInThePile) {
    TestWindow parent;
    TestWindow a;
    TestWindow b;
    TestWindow c;
    ASSERT_TRUE(make(parent) && make(a, &parent) && make(b, &parent) && make(c, &parent));
    const auto pile = [&] { return windows().find(parent.m_hWnd)->children; };
    using Pile = std::vector<HWND>;
    constexpr UINT kPlaceOnly = SWP_NOMOVE | SWP_NOSIZE;
    a.SetWindowPos(&CWnd::wndNoTopMost, 0, 0, 0, 0, kPlaceOnly);
    EXPECT_EQ(pile(), (Pile{b.m_hWnd, c.m_hWnd, a.m_hWnd}));
    a.SetWindowPos(&c, 0, 0, 0, 0, kPlaceOnly);
    EXPECT_EQ(pile(), (Pile{b.m_hWnd, a.m_hWnd, c.m_hWnd}));
    b.SetWindowPos(nullptr, 0, 0, 0, 0, kPlaceOnly | SWP_NOZORDER);
    EXPECT_EQ(pile(), (Pile{b.m_hWnd, a.m_hWnd, c.m_hWnd}));
    EXPECT_FALSE(windows().putBelow(a.m_hWnd, parent.m_hWnd));
    EXPECT_FALSE(windows().putBelow(a.m_hWnd, c.m_hWnd));
    EXPECT_FALSE(windows().putBelow(nullptr, c.m_hWnd));
    EXPECT_EQ(windows().topOf(a.m_hWnd), parent.m_hWnd);
    EXPECT_EQ(windows().popupAbove(a.m_hWnd), nullptr);
}

}  // namespace workbench
