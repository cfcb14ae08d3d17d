#include "workbench/toolkit/reparent.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"

namespace workbench {
namespace {

class ReparentTest : public ToolkitTest {};

TEST_F(ReparentTest, AWindowMovesToItsNewParent) {
    reparent(windows(), m_toolPanel->m_hWnd, m_panelSet.m_hWnd);
    EXPECT_EQ(m_toolPanel->GetParent(), &m_panelSet);
    EXPECT_TRUE(windows().find(m_panel.m_hWnd)->children.empty());
    EXPECT_EQ(windows().find(m_panelSet.m_hWnd)->children.back(), m_toolPanel->m_hWnd);
}

TEST_F(ReparentTest, TopWindowsAndEndedOnesStay) {
    const HWND top = frame().frame().m_hWnd;
    reparent(windows(), top, m_panelSet.m_hWnd);
    EXPECT_EQ(windows().find(top)->parent, nullptr);
    reparent(windows(), nullptr, m_panelSet.m_hWnd);
    reparent(windows(), m_toolPanel->m_hWnd, nullptr);
    EXPECT_EQ(m_toolPanel->GetParent(), &m_panel);
}

}  // namespace
}  // namespace workbench
