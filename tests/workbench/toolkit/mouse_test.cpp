#include "workbench/toolkit/mouse.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/toolkit/input_messages.h"

#include <string>
#include <utility>
#include <vector>

namespace workbench {
namespace {

using testing::ElementsAre;

class MouseTest : public ToolkitTest {
protected:
    MouseTest() {
        m_inner.Create(WS_CHILD | WS_VISIBLE, {10, 5, 60, 25}, m_toolPanel, 1, 0);
        m_toolPanel->MoveWindow({0, 20, 200, 100});
        m_panel.MoveWindow({0, 0, 200, 120});
        m_inner.received.clear();
    }
    Mouse& mouse() { return toolkit().mouse(); }

    ListeningToolPanel m_inner;
};

TEST_F(MouseTest, TheDeepestVisibleWindowIsFound) {
    CPoint point{15, 30};
    EXPECT_EQ(mouse().windowAt(m_panel.m_hWnd, point), m_inner.m_hWnd);
    EXPECT_EQ(point, (CPoint{5, 5}));
    m_inner.ShowWindow(SW_HIDE);
    point = {15, 30};
    EXPECT_EQ(mouse().windowAt(m_panel.m_hWnd, point), m_toolPanel->m_hWnd);
    EXPECT_EQ(point, (CPoint{15, 10}));
}

TEST_F(MouseTest, PointsTravelSigned) {
    mouse().move(m_inner.m_hWnd, {-3, 7});
    ASSERT_EQ(m_inner.of(WM_MOUSEMOVE).size(), 1U);
    EXPECT_EQ(unpackPoint(m_inner.of(WM_MOUSEMOVE)[0].lParam), (CPoint{-3, 7}));
}

TEST_F(MouseTest, AHeldShiftComesWithTheButtonsAndMoves) {
    mouse().press(m_inner.m_hWnd, {1, 1});
    EXPECT_EQ(m_inner.of(kLeftButtonDown)[0].wParam, kLeftButtonHeld);
    windows().keys().hold(VK_SHIFT, true);
    mouse().release(m_inner.m_hWnd, {1, 1});
    mouse().move(m_inner.m_hWnd, {2, 1});
    mouse().press(m_inner.m_hWnd, {2, 1});
    windows().keys().hold(VK_SHIFT, false);
    mouse().release(m_inner.m_hWnd, {2, 1});
    EXPECT_EQ(m_inner.of(kLeftButtonUp)[0].wParam, kShiftHeld);
    EXPECT_EQ(m_inner.of(WM_MOUSEMOVE)[0].wParam, kShiftHeld);
    EXPECT_EQ(m_inner.of(kLeftButtonDown)[1].wParam, kLeftButtonHeld | kShiftHeld);
    EXPECT_EQ(m_inner.of(kLeftButtonUp)[1].wParam, WPARAM{0});
}

TEST_F(MouseTest, DisabledAndEndedWindowsGetNothing) {
    m_panel.EnableWindow(0);
    m_inner.received.clear();
    EXPECT_FALSE(mouse().press(m_inner.m_hWnd, {1, 1}));
    EXPECT_TRUE(m_inner.received.empty());
    EXPECT_FALSE(mouse().press(nullptr, {1, 1}));
}

TEST_F(MouseTest, AWindowThatHoldsTheMouseGetsItsOwnPoints) {
    mouse().capture(m_inner.m_hWnd);
    mouse().move(m_toolPanel->m_hWnd, {0, 0});
    EXPECT_EQ(unpackPoint(m_inner.of(WM_MOUSEMOVE)[0].lParam), (CPoint{-10, -5}));
    m_inner.DestroyWindow();
    EXPECT_TRUE(mouse().move(m_toolPanel->m_hWnd, {0, 0}));
}

TEST_F(MouseTest, ADoubleClickIsAClickAndAnother) {
    mouse().doubleClick(m_inner.m_hWnd, {1, 1});
    std::vector<UINT> numbers;
    for (const Received& message : m_inner.received)
        numbers.push_back(message.message);
    EXPECT_THAT(numbers, ElementsAre(kLeftButtonDown, kLeftButtonUp, WM_QRUI_HAS_ICON,
                                     kLeftButtonDoubleClick, kLeftButtonUp));
}

TEST_F(MouseTest, TheWheelTurnsInBothDirections) {
    mouse().wheel(m_inner.m_hWnd, {1, 1}, -2);
    const Received turn = m_inner.of(kMouseWheel).at(0);
    EXPECT_EQ(static_cast<std::int16_t>(HIWORD(turn.wParam)), -240);
}

TEST_F(MouseTest, LeavingIsTold) {
    mouse().move(m_inner.m_hWnd, {1, 1});
    mouse().leave();
    mouse().leave();
    EXPECT_EQ(m_inner.of(kMouseLeave).size(), 1U);
}

TEST_F(MouseTest, MovingOutOfTheSetLeavesIt) {
    mouse().move(m_inner.m_hWnd, {1, 1});
    mouse().move(frame().drawingView().m_hWnd, {1, 1});
    EXPECT_EQ(m_inner.of(kMouseLeave).size(), 1U);
}

class GestureEventsTest : public MouseTest {
protected:
    GestureEventsTest() {
        mouse().setGestureEvents({[this](Mouse::Begin begin) {
                                      m_events.emplace_back(
                                          begin == Mouse::Begin::New ? "begins" : "continues");
                                  },
                                  [this] { m_events.emplace_back("ends"); }});
    }
    std::vector<std::string> takeEvents() { return std::exchange(m_events, {}); }

    std::vector<std::string> m_events;
};

TEST_F(GestureEventsTest, AGestureLastsFromPressToRelease) {
    mouse().press(m_inner.m_hWnd, {1, 1});
    mouse().move(m_inner.m_hWnd, {2, 1}, kLeftButtonHeld);
    EXPECT_THAT(takeEvents(), ElementsAre("begins"));
    mouse().release(m_inner.m_hWnd, {2, 1});
    EXPECT_THAT(takeEvents(), ElementsAre("ends"));
    mouse().release(m_inner.m_hWnd, {2, 1});
    EXPECT_TRUE(takeEvents().empty());
}

TEST_F(GestureEventsTest, APressThatNobodyTakesIsOverAtOnceAndALostOneWithTheNext) {
    mouse().press(nullptr, {1, 1});
    EXPECT_THAT(takeEvents(), ElementsAre("begins", "ends"));
    mouse().press(m_inner.m_hWnd, {1, 1});
    mouse().press(m_inner.m_hWnd, {1, 1});
    EXPECT_THAT(takeEvents(), ElementsAre("begins", "ends", "begins"));
}

TEST_F(GestureEventsTest, TurnsOfTheWheelAreOneRunUntilItRests) {
    mouse().wheel(m_inner.m_hWnd, {1, 1}, 1);
    windows().advance(Mouse::kWheelRest);
    mouse().wheel(m_inner.m_hWnd, {1, 1}, -1);
    EXPECT_THAT(takeEvents(), ElementsAre("begins", "ends", "continues", "ends"));
    windows().advance(Mouse::kWheelRest + 1);
    mouse().wheel(m_inner.m_hWnd, {1, 1}, 1);
    EXPECT_THAT(takeEvents(), ElementsAre("begins", "ends"));
    mouse().wheel(m_toolPanel->m_hWnd, {1, 1}, 1);
    EXPECT_THAT(takeEvents(), ElementsAre("begins", "ends"));
}

TEST_F(GestureEventsTest, AClickEndsARunOfTheWheelAndAWheelInADragIsPartOfIt) {
    mouse().wheel(m_inner.m_hWnd, {1, 1}, 1);
    mouse().press(m_inner.m_hWnd, {1, 1});
    mouse().wheel(m_inner.m_hWnd, {1, 1}, 1);
    mouse().release(m_inner.m_hWnd, {1, 1});
    mouse().wheel(m_inner.m_hWnd, {1, 1}, 1);
    EXPECT_THAT(takeEvents(), ElementsAre("begins", "ends", "begins", "ends", "begins", "ends"));
}

}  // namespace
}  // namespace workbench
