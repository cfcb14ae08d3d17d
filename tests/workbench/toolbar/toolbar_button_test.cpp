#include "workbench/toolbar/toolbar_button.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/mouse_gestures.h"

namespace workbench {
namespace {

using ToolbarButtonTest = ToolkitTest;

TEST_F(ToolbarButtonTest, AClickTellsTheParent) {
    CWnd button;
    WindowCreation creation;
    creation.className = "ToolbarButton";
    creation.style = WS_CHILD | WS_VISIBLE;
    creation.rect = {0, 0, 22, 22};
    creation.parent = m_toolPanel->m_hWnd;
    creation.id = 44445;
    creation.widget = std::make_unique<ToolbarButton>(windows());
    ASSERT_TRUE(windows().create(button, std::move(creation)));
    m_toolPanel->received.clear();
    gestures::clickAt(toolkit(), button.m_hWnd, {2, 2});
    const std::vector<Received> commands = m_toolPanel->of(WM_COMMAND);
    ASSERT_EQ(commands.size(), 1U);
    EXPECT_EQ(LOWORD(commands[0].wParam), 44445U);
    EXPECT_EQ(HIWORD(commands[0].wParam), 0U);
    EXPECT_EQ(commands[0].lParam, reinterpret_cast<LPARAM>(button.m_hWnd));
    button.DestroyWindow();
}

}  // namespace
}  // namespace workbench
