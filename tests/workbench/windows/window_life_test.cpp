#include "tests/workbench/windows/window_fixture.h"

namespace workbench {

namespace {

class WindowLifeTest : public WindowTest {};

}  // namespace

TEST_F(WindowLifeTest, AWindowHearsOfItsCreationWithItsPlace) {
    TestWindow window;
    CREATESTRUCT seen{};
    struct Reader : TestWindow {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_CREATE)
                record = *reinterpret_cast<const CREATESTRUCT*>(lParam);
            return TestWindow::WindowProc(message, wParam, lParam);
        }
        CREATESTRUCT record{};
    } child;
    ASSERT_TRUE(make(window));
    ASSERT_TRUE(make(child, &window, 7));
    seen = child.record;
    EXPECT_EQ(seen.x, 10);
    EXPECT_EQ(seen.y, 20);
    EXPECT_EQ(seen.cx, 100);
    EXPECT_EQ(seen.cy, 50);
    EXPECT_EQ(seen.hwndParent, window.m_hWnd);
    EXPECT_EQ(child.GetDlgCtrlID(), 7);
    EXPECT_EQ(child.GetParent(), &window);
    EXPECT_EQ(CWnd::FromHandle(child.m_hWnd), &child);
}

TEST_F(WindowLifeTest, ACreationThatAnswersMinusOneLeavesNoWindow) {
    TestWindow window;
    window.answer = -1;
    EXPECT_FALSE(make(window));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(windowCount(), 0U);
}

TEST_F(WindowLifeTest, AnObjectGetsNoSecondWindow) {
    TestWindow window;
    ASSERT_TRUE(make(window));
    EXPECT_FALSE(make(window));
    EXPECT_EQ(windowCount(), 1U);
}

TEST_F(WindowLifeTest, AWindowThatIsGoingTakesNoChild) {
    TestWindow parent;
    TestWindow child;
    ASSERT_TRUE(make(parent));
    bool isMade = true;
    parent.onMessage = [&](UINT message) {
        if (message == WM_DESTROY)
            isMade = make(child, &parent);
    };
    parent.DestroyWindow();
    EXPECT_FALSE(isMade);
    EXPECT_EQ(child.m_hWnd, nullptr);
}

TEST_F(WindowLifeTest, AStaleHandleFindsNothingEvenWhenItsPlaceIsTakenAgain) {
    TestWindow first;
    TestWindow second;
    ASSERT_TRUE(make(first));
    const HWND stale = first.m_hWnd;
    EXPECT_TRUE(first.DestroyWindow());
    ASSERT_TRUE(make(second));
    EXPECT_NE(second.m_hWnd, stale);
    EXPECT_EQ(CWnd::FromHandle(stale), nullptr);
    EXPECT_FALSE(IsWindow(stale));
    EXPECT_EQ(SendMessage(stale, WM_SIZE, 0, 0), 0);
    EXPECT_TRUE(IsWindow(second.m_hWnd));
}

TEST_F(WindowLifeTest, DestroyingHidesFirstAndTellsParentsBeforeChildren) {
    TestWindow parent;
    TestWindow child;
    TestWindow grandchild;
    ASSERT_TRUE(make(parent));
    ASSERT_TRUE(make(child, &parent));
    ASSERT_TRUE(make(grandchild, &child));
    std::vector<std::string> order;
    parent.onMessage = [&](UINT message) {
        if (message == WM_WINDOWPOSCHANGED)
            order.push_back("parent hidden");
        if (message == WM_DESTROY)
            order.push_back("parent");
    };
    child.onMessage = [&](UINT message) {
        if (message == WM_DESTROY)
            order.push_back(parent.m_hWnd != nullptr ? "child, parent lives" : "child");
    };
    grandchild.onMessage = [&](UINT message) {
        if (message == WM_DESTROY)
            order.push_back("grandchild");
    };
    EXPECT_TRUE(parent.DestroyWindow());
    EXPECT_EQ(order, (std::vector<std::string>{"parent hidden", "parent", "child, parent lives",
                                               "grandchild"}));
    EXPECT_EQ(parent.m_hWnd, nullptr);
    EXPECT_EQ(child.m_hWnd, nullptr);
    EXPECT_EQ(grandchild.m_hWnd, nullptr);
    EXPECT_EQ(windowCount(), 0U);
    EXPECT_FALSE(parent.DestroyWindow());
}

TEST_F(WindowLifeTest, HandlesAreClearedChildrenBeforeParents) {
    TestWindow parent;
    TestWindow child;
    ASSERT_TRUE(make(parent));
    ASSERT_TRUE(make(child, &parent));
    const std::vector<HWND> expected{child.m_hWnd, parent.m_hWnd};
    std::vector<HWND> gone;
    windows().changes().setObserver([&](HWND window) {
        if (!IsWindow(window))
            gone.push_back(window);
    });
    parent.DestroyWindow();
    windows().changes().setObserver(nullptr);
    EXPECT_EQ(gone, expected);
}

TEST_F(WindowLifeTest, AnObjectThatEndsTakesItsWindowAlong) {
    TestWindow parent;
    ASSERT_TRUE(make(parent));
    HWND handle = nullptr;
    {
        TestWindow child;
        ASSERT_TRUE(make(child, &parent));
        handle = child.m_hWnd;
    }
    EXPECT_FALSE(IsWindow(handle));
    EXPECT_EQ(windowCount(), 1U);
}

TEST_F(WindowLifeTest, AbandonedWindowsGoWithoutAMessage) {
    auto window = std::make_unique<TestWindow>();
    ASSERT_TRUE(make(*window));
    windows().life().abandonAll();
    EXPECT_EQ(window->m_hWnd, nullptr);
    EXPECT_EQ(window->count(WM_DESTROY), 0);
    EXPECT_EQ(windows().count(), 0U);
}

TEST_F(WindowLifeTest, AWindowMayEndInsideItsOwnMessage) {
    TestWindow window;
    ASSERT_TRUE(make(window, nullptr, 0, std::make_unique<FocusReporter>()));
    window.onMessage = [&](UINT message) {
        if (message == WM_TIMER)
            window.DestroyWindow();
    };
    EXPECT_EQ(window.SendMessage(WM_TIMER), 0);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.count(WM_DESTROY), 1);
}

TEST_F(WindowLifeTest, AParentMayEndInsideTheEndOfItsChild) {
    TestWindow parent;
    TestWindow child;
    ASSERT_TRUE(make(parent));
    ASSERT_TRUE(make(child, &parent));
    child.onMessage = [&](UINT message) {
        if (message == WM_DESTROY)
            parent.DestroyWindow();
    };
    child.DestroyWindow();
    EXPECT_EQ(child.count(WM_DESTROY), 1);
    EXPECT_EQ(parent.count(WM_DESTROY), 1);
    EXPECT_EQ(windowCount(), 0U);
}

TEST_F(WindowLifeTest, AnObjectMayEndWhileItsWindowIsOnItsWayOut) {
    auto parent = std::make_unique<TestWindow>();
    TestWindow child;
    ASSERT_TRUE(make(*parent));
    ASSERT_TRUE(make(child, parent.get()));
    const HWND window = parent->m_hWnd;
    child.onMessage = [&](UINT message) {
        if (message == WM_DESTROY)
            parent.reset();
    };
    windows().destroy(window);
    EXPECT_EQ(parent, nullptr);
    EXPECT_EQ(child.m_hWnd, nullptr);
    EXPECT_EQ(windowCount(), 0U);
}

TEST_F(WindowLifeTest, APopupStandsOnTheScreenAndGoesWithTheWindowThatItIsOver) {
    TestWindow owner;
    TestWindow inside;
    TestWindow popup;
    ASSERT_TRUE(make(owner) && make(inside, &owner));
    constexpr CRect kPlace{300, 200, 400, 250};
    ASSERT_TRUE(popup.CreateEx(0, L"Static", L"Popup", WS_POPUP | WS_BORDER, kPlace, &inside, 0));
    EXPECT_EQ(popup.GetWindowRect(), kPlace);
    EXPECT_EQ(popup.GetWindowText(), L"Popup");
    EXPECT_EQ(popup.GetParent(), &inside);
    EXPECT_FALSE(popup.IsWindowVisible());
    owner.DestroyWindow();
    EXPECT_EQ(popup.m_hWnd, nullptr);
    EXPECT_EQ(popup.count(WM_DESTROY), 1);
}

TEST_F(WindowLifeTest, OnlyAKnownClassMakesAWindowAndAChildNeedsAParent) {
    TestWindow owner;
    TestWindow window;
    ASSERT_TRUE(make(owner));
    EXPECT_FALSE(window.CreateEx(0, L"Nothing", nullptr, WS_CHILD, {}, &owner, 0));
    EXPECT_FALSE(window.CreateEx(0, nullptr, nullptr, WS_CHILD, {}, &owner, 0));
    EXPECT_FALSE(window.CreateEx(0, L"Static", nullptr, WS_CHILD, {}, nullptr, 0));
    EXPECT_TRUE(window.CreateEx(0, L"Static", nullptr, WS_CHILD, {1, 2, 3, 4}, &owner, 9));
    EXPECT_EQ(window.GetParent(), &owner);
    EXPECT_EQ(window.GetDlgCtrlID(), 9);
}

}  // namespace workbench
