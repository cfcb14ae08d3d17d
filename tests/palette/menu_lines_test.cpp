#include "palette/menu_lines.h"

#include "core/string_ids.h"
#include "tests/palette/palette_fixture.h"
#include "workbench/windows/window_system.h"

namespace {

class MenuLinesTest : public PaletteTest {};

TEST_F(MenuLinesTest, AreLabelledFromTheResourceLibrary) {
    load();
    CMenu menu;
    CMenu sub;
    menu.CreatePopupMenu();
    sub.CreatePopupMenu();
    forget();
    appendCommand(menu, 7, kStrHelp);
    appendPopup(menu, sub, kStrPanelsMenu);
    appendCommand(sub, 8, kStrHidePanel);
    EXPECT_EQ(takeLines({"CMenu::AppendMenu", "LoadString"}),
              (std::vector<std::string>{"LoadString(205)", "CMenu::AppendMenu(0, 7, \"Help\")",
                                        "LoadString(204)", "CMenu::AppendMenu(16, 0, \"Panels\")",
                                        "LoadString(207)", "CMenu::AppendMenu(0, 8, \"Hide\")"}));
    const auto lines = bench().windows().menus().read(menu.m_hMenu);
    EXPECT_EQ(labels(lines), (std::vector<std::string>{"Help", "Panels"}));
    EXPECT_EQ(lines[0].command, 7U);
    EXPECT_EQ(labels(lines[1].children), std::vector<std::string>{"Hide"});
}

TEST_F(MenuLinesTest, HaveNoTextWithoutTheLibrary) {
    CMenu menu;
    menu.CreatePopupMenu();
    appendCommand(menu, 7, kStrHelp);
    EXPECT_EQ(labels(bench().windows().menus().read(menu.m_hMenu)), std::vector<std::string>{""});
}

}  // namespace
