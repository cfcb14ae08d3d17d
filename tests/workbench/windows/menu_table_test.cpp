#include "workbench/windows/menu_table.h"

#include "tests/workbench/windows/window_fixture.h"

namespace workbench {

namespace {

class MenuTableTest : public WindowTest {
protected:
    MenuTable& menus() { return windows().menus(); }

    static std::uintptr_t handle(const CMenu& menu) {
        return reinterpret_cast<std::uintptr_t>(menu.m_hMenu);
    }
};

}  // namespace

TEST_F(MenuTableTest, LinesAreReadAsAUserSeesThem) {
    CMenu menu;
    CMenu popup;
    ASSERT_TRUE(menu.CreatePopupMenu() && popup.CreatePopupMenu());
    EXPECT_TRUE(popup.AppendMenu(MF_STRING, 53500, L"Layers"));
    EXPECT_TRUE(menu.AppendMenu(MF_STRING | MF_CHECKED, 7, L"Dock"));
    EXPECT_TRUE(menu.AppendMenu(MF_SEPARATOR));
    EXPECT_TRUE(menu.AppendMenu(MF_POPUP, handle(popup), L"Panels"));
    EXPECT_EQ(menu.GetMenuItemCount(), 3);
    const std::vector<MenuLine> lines = menus().read(menu.m_hMenu);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0].text, L"Dock");
    EXPECT_EQ(lines[0].command, 7U);
    EXPECT_TRUE(lines[0].checked);
    EXPECT_FALSE(lines[0].disabled);
    EXPECT_TRUE(lines[1].separator);
    EXPECT_FALSE(lines[1].checked);
    ASSERT_EQ(lines[2].children.size(), 1U);
    EXPECT_EQ(lines[2].children[0].text, L"Layers");
    EXPECT_EQ(lines[2].children[0].command, 53500U);
}

TEST_F(MenuTableTest, ALinesStateIsItsFlags) {
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_SEPARATOR);
    EXPECT_EQ(menu.GetMenuStateAt(0), static_cast<int>(MF_SEPARATOR));
    EXPECT_EQ(menu.GetMenuStateAt(1), -1);
    EXPECT_EQ(menu.GetMenuStateAt(-1), -1);
}

TEST_F(MenuTableTest, AMenuTakesItsPopupsAlong) {
    CMenu menu;
    CMenu popup;
    ASSERT_TRUE(menu.CreatePopupMenu() && popup.CreatePopupMenu());
    ASSERT_TRUE(menu.AppendMenu(MF_POPUP, handle(popup), L"Panels"));
    EXPECT_TRUE(menu.DestroyMenu());
    EXPECT_FALSE(popup.IsMenu());
    EXPECT_EQ(menus().liveCount(), 0U);
    EXPECT_FALSE(popup.DestroyMenu());
    EXPECT_TRUE(popup.CreatePopupMenu());
}

TEST_F(MenuTableTest, APopupThatWasRemovedLivesOn) {
    CMenu menu;
    CMenu popup;
    ASSERT_TRUE(menu.CreatePopupMenu() && popup.CreatePopupMenu());
    ASSERT_TRUE(menu.AppendMenu(MF_POPUP, handle(popup), L"Panels"));
    EXPECT_TRUE(menu.RemoveMenuAt(0));
    EXPECT_FALSE(menu.RemoveMenuAt(0));
    EXPECT_TRUE(menu.DestroyMenu());
    EXPECT_TRUE(popup.IsMenu());
}

TEST_F(MenuTableTest, AMenuEndsWithItsObject) {
    {
        CMenu menu;
        ASSERT_TRUE(menu.CreatePopupMenu());
        EXPECT_EQ(menus().liveCount(), 1U);
    }
    EXPECT_EQ(menus().liveCount(), 0U);
}

TEST_F(MenuTableTest, AMenuHangsInNoMenuOfItsOwn) {
    CMenu menu;
    CMenu popup;
    ASSERT_TRUE(menu.CreatePopupMenu() && popup.CreatePopupMenu());
    ASSERT_TRUE(menu.AppendMenu(MF_POPUP, handle(popup), L"Panels"));
    EXPECT_FALSE(popup.AppendMenu(MF_POPUP, handle(menu), L"Back"));
    EXPECT_FALSE(menu.AppendMenu(MF_POPUP, handle(menu), L"Self"));
}

TEST_F(MenuTableTest, AnObjectThatHoldsAMenuMakesNoSecondOne) {
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    EXPECT_FALSE(menu.CreatePopupMenu());
    EXPECT_EQ(menus().liveCount(), 1U);
}

TEST_F(MenuTableTest, NothingIsAddedWithoutAMenuOrWithAFault) {
    CMenu menu;
    EXPECT_FALSE(menu.AppendMenu(MF_STRING, 1, L"line"));
    Faults& faults = Workbench::current().faults();
    faults.fail("CMenu::CreatePopupMenu", {}, 1);
    EXPECT_FALSE(menu.CreatePopupMenu());
    ASSERT_TRUE(menu.CreatePopupMenu());
    faults.fail("CMenu::AppendMenu", {}, 1);
    EXPECT_FALSE(menu.AppendMenu(MF_STRING, 1, L"line"));
    EXPECT_EQ(menu.GetMenuItemCount(), 0);
}

TEST_F(MenuTableTest, ALineIsEnabledByItsCommandWhereverItIsOrByItsPosition) {
    CMenu menu;
    CMenu popup;
    ASSERT_TRUE(menu.CreatePopupMenu() && popup.CreatePopupMenu());
    popup.AppendMenu(MF_STRING, 7, L"Inner");
    menu.AppendMenu(MF_POPUP, handle(popup), L"Popup");
    menu.AppendMenu(MF_STRING | MF_CHECKED, 8, L"Outer");
    EXPECT_EQ(menu.EnableMenuItem(7, MF_BYCOMMAND | MF_GRAYED), 0);
    EXPECT_EQ(menu.EnableMenuItem(7, MF_BYCOMMAND | MF_ENABLED), static_cast<int>(MF_GRAYED));
    EXPECT_EQ(menu.EnableMenuItem(1, MF_BYPOSITION | MF_GRAYED), static_cast<int>(MF_CHECKED));
    EXPECT_EQ(menu.GetMenuStateAt(1), static_cast<int>(MF_CHECKED | MF_GRAYED));
    EXPECT_EQ(menu.EnableMenuItem(9, MF_BYCOMMAND), -1);
    EXPECT_EQ(menu.EnableMenuItem(2, MF_BYPOSITION), -1);
    const std::vector<MenuLine> lines = menus().read(menu.m_hMenu);
    EXPECT_FALSE(lines[0].children[0].disabled);
    EXPECT_TRUE(lines[1].disabled);
}

}  // namespace workbench
