#include "workbench/toolkit/click_focus_widget.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/mouse_gestures.h"

namespace workbench {
namespace {

class ClickFocusWidgetTest : public ToolkitTest {};

TEST_F(ClickFocusWidgetTest, AClickGivesTheFocus) {
    gestures::clickAt(toolkit(), frame().commandLine().m_hWnd, {5, 5});
    ASSERT_NE(windows().focus(), frame().frame().m_hWnd);
    toolkit().mouse().press(frame().frame().m_hWnd, {5, 5});
    EXPECT_EQ(windows().focus(), frame().frame().m_hWnd);
}

TEST_F(ClickFocusWidgetTest, AMoveDoesNot) {
    toolkit().mouse().move(frame().frame().m_hWnd, {5, 5});
    EXPECT_EQ(windows().focus(), frame().drawingView().m_hWnd);
}

}  // namespace
}  // namespace workbench
