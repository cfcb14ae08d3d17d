#include "workbench/windows/window_system.h"

#include <gtest/gtest.h>

#include <optional>
#include <utility>

namespace workbench {

namespace {

/// A window object that needs no host.
class LoneWindow : public CWnd {
public:
    LRESULT WindowProc(UINT message, WPARAM, LPARAM) override {
        last = message;
        return 0;
    }

    UINT last = 0;
};

class WindowSystemTest : public testing::Test {
protected:
    bool make(LoneWindow& object, HWND parent = nullptr) {
        WindowCreation creation;
        creation.style = WS_VISIBLE;
        creation.parent = parent;
        return m_windows->create(object, std::move(creation));
    }

    Clock m_clock;
    Journal m_journal{m_clock};
    std::optional<WindowSystem> m_windows{std::in_place, m_clock, m_journal};
};

}  // namespace

TEST_F(WindowSystemTest, WindowsThatAreLeftAtTheEndGoWithoutAMessage) {
    LoneWindow parent;
    LoneWindow child;
    ASSERT_TRUE(make(parent) && make(child, parent.m_hWnd));
    m_windows->timers().start(child.m_hWnd, 1, 10);
    m_windows->queue().post(child.m_hWnd, WM_SIZE, 0, 0);
    m_windows.reset();
    EXPECT_EQ(parent.m_hWnd, nullptr);
    EXPECT_EQ(child.m_hWnd, nullptr);
    EXPECT_EQ(parent.last, UINT{WM_CREATE});
    EXPECT_EQ(child.last, UINT{WM_CREATE});
}

TEST_F(WindowSystemTest, TimersPostedMessagesAndFocusGoWithTheirWindow) {
    LoneWindow window;
    ASSERT_TRUE(make(window));
    ASSERT_TRUE(m_windows->setFocus(window.m_hWnd));
    m_windows->timers().start(window.m_hWnd, 1, 10);
    m_windows->queue().post(window.m_hWnd, WM_SIZE, 0, 0);
    EXPECT_TRUE(m_windows->destroy(window.m_hWnd));
    EXPECT_EQ(m_windows->focus(), nullptr);
    m_windows->advance(10);
    EXPECT_EQ(window.last, UINT{WM_DESTROY});
}

}  // namespace workbench
