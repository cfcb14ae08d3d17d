#include "workbench/gestures/menu_gestures.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/gesture_error.h"

namespace workbench::gestures {
namespace {

class MenuGesturesTest : public ToolkitTest {};

TEST_F(MenuGesturesTest, ReadingAMenuChoosesNothing) {
    m_workbench.answers().queue("menu", "Collapse");
    const std::vector<MenuLine> lines = readContextMenu(toolkit(), m_panel.m_hWnd);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].text, L"Collapse");
    EXPECT_TRUE(m_toolPanel->IsWindowVisible());
}

TEST_F(MenuGesturesTest, ChoosingRunsTheLine) {
    chooseFromContextMenu(toolkit(), m_panel.m_hWnd, L"Collapse");
    EXPECT_FALSE(m_toolPanel->IsWindowVisible());
}

TEST_F(MenuGesturesTest, AnUnknownLineIsAnError) {
    EXPECT_THROW(chooseFromContextMenu(toolkit(), m_panel.m_hWnd, L"Panels"), GestureError);
}

TEST_F(MenuGesturesTest, AWindowWithoutAMenuIsAnError) {
    EXPECT_THROW(readContextMenu(toolkit(), frame().drawingView().m_hWnd), GestureError);
    EXPECT_FALSE(toolkit().menus().isAnswerWaiting());
    m_panel.ShowWindow(SW_HIDE);
    EXPECT_THROW(readContextMenu(toolkit(), m_panel.m_hWnd), GestureError);
}

}  // namespace
}  // namespace workbench::gestures
