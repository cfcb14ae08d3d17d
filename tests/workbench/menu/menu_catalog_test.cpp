#include "workbench/menu/menu_catalog.h"

#include <gtest/gtest.h>

namespace workbench {

namespace {

MenuItem button(const std::string& id) {
    MenuItem item;
    item.id = id;
    return item;
}

MenuData twoGroups() {
    MenuData menu;
    menu.menuGroups = {{"ZORQ", ""}, {"HOUSE", "HouseTools.xmx"}};
    menu.toolPanels = {{"ZORQ", "Tools", {button("ID_A")}}, {"HOUSE", "Tools", {button("ID_B")}}};
    menu.panels = {{"Main", "Main", "ZORQ", "", {"Tools"}}, {"Main", "House", "HOUSE", "", {}}};
    menu.toolPaletteSchemes = {{"Scheme", {"Walls"}}};
    return menu;
}

}  // namespace

TEST(MenuCatalogTest, OneIdInTwoMenuGroupsNamesTwoPanels) {
    const MenuCatalog catalog(twoGroups());
    ASSERT_NE(catalog.findPanel("ZORQ", "Main"), nullptr);
    EXPECT_EQ(catalog.findPanel("ZORQ", "Main")->title, "Main");
    ASSERT_NE(catalog.findPanel("HOUSE", "Main"), nullptr);
    EXPECT_EQ(catalog.findPanel("HOUSE", "Main")->title, "House");
}

TEST(MenuCatalogTest, OneIdInTwoMenuGroupsNamesTwoToolPanels) {
    const MenuCatalog catalog(twoGroups());
    ASSERT_NE(catalog.findToolPanel("ZORQ", "Tools"), nullptr);
    EXPECT_EQ(catalog.findToolPanel("ZORQ", "Tools")->items[0].id, "ID_A");
    ASSERT_NE(catalog.findToolPanel("HOUSE", "Tools"), nullptr);
    EXPECT_EQ(catalog.findToolPanel("HOUSE", "Tools")->items[0].id, "ID_B");
}

TEST(MenuCatalogTest, GroupAndIdDoNotRunTogether) {
    const MenuCatalog catalog(twoGroups());
    EXPECT_EQ(catalog.findToolPanel("ZOR", "QTools"), nullptr);
    EXPECT_EQ(catalog.findToolPanel("ZORQTools", ""), nullptr);
}

TEST(MenuCatalogTest, NamesCompareExactly) {
    const MenuCatalog catalog(twoGroups());
    EXPECT_EQ(catalog.findPanel("zorq", "Main"), nullptr);
    EXPECT_EQ(catalog.findToolPanel("ZORQ", "tools"), nullptr);
    EXPECT_EQ(catalog.findMenuGroup("house"), nullptr);
    EXPECT_EQ(catalog.findToolPaletteScheme("scheme"), nullptr);
}

TEST(MenuCatalogTest, GroupsAndSchemesAreFoundByName) {
    const MenuCatalog catalog(twoGroups());
    ASSERT_NE(catalog.findMenuGroup("HOUSE"), nullptr);
    EXPECT_EQ(catalog.findMenuGroup("HOUSE")->resourceModule, "HouseTools.xmx");
    ASSERT_NE(catalog.findToolPaletteScheme("Scheme"), nullptr);
    EXPECT_EQ(catalog.findToolPaletteScheme("Scheme")->groups, std::vector<std::string>{"Walls"});
}

}  // namespace workbench
