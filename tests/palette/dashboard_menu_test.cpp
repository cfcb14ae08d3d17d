#include "tests/palette/dashboard_fixture.h"

namespace {

using Names = std::vector<std::string>;

TEST_F(DashboardTest, F1AnywhereInsideOpensTheTopicAndIsNotPassedOn) {
    show();
    for (CWnd* window : {static_cast<CWnd*>(&dashboard()), static_cast<CWnd*>(&panelSet())}) {
        forget();
        bench().windows().input(window->m_hWnd, WM_HELP, 0, 0);
        EXPECT_NE(lastCall("vxedHelp").find("[null,\"DASHBOARD\",0]"), std::string::npos);
        EXPECT_EQ(callCount("vxedHelp"), 1);
    }
    MSG key{dashboard().m_hWnd, WM_HELP, 0, 0};
    EXPECT_EQ(dashboard().PreTranslateMessage(&key), 1);
    MSG other{dashboard().m_hWnd, WM_KEYDOWN, VK_RETURN, 0};
    EXPECT_EQ(dashboard().PreTranslateMessage(&other), 0);
}

TEST_F(DashboardTest, TheHelpCommandOpensTheTopic) {
    show();
    dashboard().SendMessage(WM_COMMAND, 37330);
    EXPECT_NE(lastCall("vxedHelp").find("[null,\"DASHBOARD\",0]"), std::string::npos);
}

TEST_F(DashboardTest, PanelCommandsTogglePanels) {
    show();
    dashboard().SendMessage(WM_COMMAND, 53500);
    EXPECT_EQ(shown(), (Names{"MAIN/Draw", "OTHER/Draw", "MAIN/Spare"}));
}

/// Lines that the toolkit has begun the context menu with, and what they look like before the
/// dashboard's own.
struct BegunMenu {
    std::vector<UINT> begun;
    Names kept;
};

class BegunMenuTest : public DashboardTest, public testing::WithParamInterface<BegunMenu> {};

TEST_P(BegunMenuTest, EndsWithOneSeparatorBeforeThePanels) {
    show();
    Names expected = GetParam().kept;
    expected.insert(expected.end(), {"Panels", "Help"});
    EXPECT_EQ(menuBehind(GetParam().begun), expected);
}

INSTANTIATE_TEST_SUITE_P(Menus, BegunMenuTest,
                         testing::Values(BegunMenu{{}, {}}, BegunMenu{{MF_STRING}, {"Begun", "-"}},
                                         BegunMenu{{MF_STRING, MF_SEPARATOR}, {"Begun", "-"}},
                                         BegunMenu{{MF_STRING, MF_SEPARATOR, MF_SEPARATOR},
                                                   {"Begun", "-"}},
                                         BegunMenu{{MF_SEPARATOR}, {}}));

TEST_F(DashboardTest, ItsLinesOfTheContextMenuHaveTheirCommands) {
    show();
    const std::vector<workbench::MenuLine> lines = menuOfDashboard();
    EXPECT_EQ(labels(lines), (Names{"Panels", "Help"}));
    EXPECT_EQ(lines[1].command, 37330U);
    std::vector<UINT> commands;
    for (const workbench::MenuLine& line : lines[0].children)
        commands.push_back(line.command);
    EXPECT_EQ(commands, (std::vector<UINT>{53500, 53501, 53502, 53503}));
}

TEST_F(DashboardTest, APanelsMenuThatCannotBeBuiltIsLeftOut) {
    show();
    CMenu menu;
    menu.CreatePopupMenu();
    fail("CMenu::CreatePopupMenu");
    EXPECT_EQ(dashboard().AddContextMenuItems(menu), 1);
    EXPECT_EQ(labels(bench().windows().menus().read(menu.m_hMenu)), Names{"Help"});
}

}  // namespace
