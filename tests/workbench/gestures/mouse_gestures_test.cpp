#include "workbench/gestures/mouse_gestures.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/gesture_error.h"
#include "workbench/toolkit/input_messages.h"

namespace workbench::gestures {
namespace {

class MouseGesturesTest : public ToolkitTest {
protected:
    MouseGesturesTest() {
        m_inner.Create(WS_CHILD | WS_VISIBLE, {0, 0, 60, 20}, m_toolPanel, 1, 0);
        m_toolPanel->MoveWindow({0, 20, 200, 100});
        m_inner.received.clear();
    }
    ListeningToolPanel m_inner;
};

TEST_F(MouseGesturesTest, AGestureGoesToTheDeepestWindow) {
    EXPECT_TRUE(clickAt(toolkit(), m_toolPanel->m_hWnd, {5, 5}));
    EXPECT_TRUE(doubleClickAt(toolkit(), m_toolPanel->m_hWnd, {5, 5}));
    EXPECT_TRUE(hoverAt(toolkit(), m_toolPanel->m_hWnd, {5, 5}));
    EXPECT_TRUE(turnWheel(toolkit(), m_toolPanel->m_hWnd, {5, 5}, 1));
    EXPECT_EQ(m_inner.of(kLeftButtonUp).size(), 3U);
    EXPECT_EQ(m_inner.of(kLeftButtonDoubleClick).size(), 1U);
    EXPECT_EQ(m_inner.of(WM_MOUSEMOVE).size(), 1U);
    EXPECT_EQ(m_inner.of(kMouseWheel).size(), 1U);
    leave(toolkit());
    EXPECT_EQ(m_inner.of(kMouseLeave).size(), 1U);
}

TEST_F(MouseGesturesTest, ADisabledWindowAnswersFalse) {
    m_inner.EnableWindow(0);
    EXPECT_FALSE(clickAt(toolkit(), m_inner.m_hWnd, {5, 5}));
}

TEST_F(MouseGesturesTest, HiddenAndEndedWindowsAreErrorsThatNameThem) {
    windows().setName(m_inner.m_hWnd, "Fade");
    m_inner.ShowWindow(SW_HIDE);
    try {
        clickAt(toolkit(), m_inner.m_hWnd, {5, 5});
        FAIL() << "a hidden window was clicked";
    } catch (const GestureError& error) {
        EXPECT_STREQ(error.what(), "CQrUiToolPanel of \"Fade\" is not on show");
    }
    EXPECT_THROW(clickAt(toolkit(), nullptr, {5, 5}), GestureError);
}

TEST_F(MouseGesturesTest, TheMiddleIsInClientCoordinates) {
    EXPECT_EQ(middleOf(toolkit(), m_inner.m_hWnd), (CPoint{30, 10}));
}

}  // namespace
}  // namespace workbench::gestures
