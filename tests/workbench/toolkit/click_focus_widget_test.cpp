#include "workbench/toolkit/click_focus_widget.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/mouse_gestures.h"

namespace workbench {
namespace {

class ClickFocusWidgetTest : public ToolkitTest {};

TEST_F(ClickFocusWidgetTest, AClickGivesTheFocus) {
    for (const HWND window : {frame().commandLine().m_hWnd, frame().drawingView().m_hWnd}) {
        gestures::clickAt(toolkit(), window, {5, 5});
        EXPECT_EQ(windows().focus(), window);
    }
}

TEST_F(ClickFocusWidgetTest, AMoveDoesNot) {
    gestures::hoverAt(toolkit(), frame().commandLine().m_hWnd, {5, 5});
    EXPECT_EQ(windows().focus(), frame().drawingView().m_hWnd);
}

}  // namespace
}  // namespace workbench
