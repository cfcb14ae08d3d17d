#include "workbench/toolkit/context_menu.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"

namespace workbench {
namespace {

class ContextMenuTest : public ToolkitTest {
protected:
    ContextMenuTest() {
        m_menu.CreatePopupMenu();
        m_menu.AppendMenu(MF_STRING, 1, L"Own");
        m_menu.AppendMenu(MF_STRING, 500, L"Foreign");
    }
    void choose(const char* path) {
        m_workbench.answers().queue("menu", path);
        runContextMenu(toolkit(), m_panel.m_hWnd, m_menu, [this](Window&, UINT command) {
            m_own.push_back(command);
            return command == 1;
        });
    }
    CMenu m_menu;
    std::vector<UINT> m_own;
};

TEST_F(ContextMenuTest, AnOwnCommandIsNotSent) {
    choose("Own");
    EXPECT_THAT(m_own, testing::ElementsAre(1U));
    EXPECT_TRUE(m_panel.of(WM_COMMAND).empty());
}

TEST_F(ContextMenuTest, AForeignCommandIsSentToTheWindow) {
    choose("Foreign");
    EXPECT_THAT(m_panel.of(WM_COMMAND), testing::ElementsAre(Received{WM_COMMAND, 500, 0}));
}

TEST_F(ContextMenuTest, WithoutAChoiceNothingHappens) {
    runContextMenu(toolkit(), m_panel.m_hWnd, m_menu, [this](Window&, UINT command) {
        m_own.push_back(command);
        return true;
    });
    EXPECT_TRUE(m_own.empty());
    EXPECT_TRUE(m_panel.of(WM_COMMAND).empty());
}

TEST_F(ContextMenuTest, AWindowThatEndsWhileItsMenuIsOpenGetsNothing) {
    toolkit().menus().answerNext([this](const std::vector<MenuLine>&) {
        m_set->DestroyWindow();
        return std::optional(500U);
    });
    runContextMenu(toolkit(), m_panel.m_hWnd, m_menu, [this](Window&, UINT command) {
        m_own.push_back(command);
        return true;
    });
    EXPECT_TRUE(m_own.empty());
}

}  // namespace
}  // namespace workbench
