#include "workbench/menu/menu_reader.h"

#include "workbench/base/input_error.h"

#include <gtest/gtest.h>

#include <string>

namespace workbench {

namespace {

constexpr const char* kSmallMenu = R"({
"panels": [
  { "menuGroup": "A", "id": "Main", "title": "Main panel", "image": "I", "toolPanels": ["T", "F"] },
  { "menuGroup": "B", "id": "Main", "title": "Other", "toolPanels": [] }
],
"workspaces": [
  { "name": "W1", "panels": [{ "panel": "Main", "menuGroup": "B" },
                             { "panel": "Main", "menuGroup": "A" }] },
  { "name": "W2", "panels": [] }
],
"currentWorkspace": "W2",
"toolPaletteGroups": { "Scheme": ["Walls", "Doors"] },
"toolPanels": [
  { "menuGroup": "A", "id": "T", "items": [{ "type": "flyout", "id": "X", "flyout": "F" }] },
  { "menuGroup": "A", "id": "F", "items": [{ "type": "button", "id": "ID_1" },
                                           { "type": "separator" }] },
  { "menuGroup": "B", "id": "T", "items": [] }
],
"menuGroups": [{ "name": "A" }, { "name": "B", "resourceModule": "B.xmx" }]
})";

/// A menu with one menu group "A" and these sections beside it.
std::string menuWith(const std::string& toolPanels, const std::string& panels = "",
                     const std::string& more = "") {
    return "{\"menuGroups\": [{\"name\": \"A\"}],\n\"toolPanels\": [" + toolPanels +
           "],\n\"panels\": [" + panels + "]" + (more.empty() ? "" : ",\n" + more) + "}";
}

std::string toolPanel(const std::string& id, const std::string& items) {
    return R"({"menuGroup": "A", "id": ")" + id + R"(", "items": [)" + items + "]}";
}

std::string flyoutTo(const std::string& id) {
    return R"({"type": "flyout", "id": "X", "flyout": ")" + id + R"("})";
}

std::string panel(const std::string& id, const std::string& toolPanels) {
    return R"({"menuGroup": "A", "id": ")" + id + R"(", "title": "P", "toolPanels": [)" +
           toolPanels + "]}";
}

std::string complaintAbout(const std::string& text) {
    try {
        readMenuText(text, "menu.json");
    } catch (const InputError& error) {
        return error.what();
    }
    ADD_FAILURE() << "no complaint about: " << text;
    return {};
}

}  // namespace

TEST(MenuReaderTest, SectionsMayStandInAnyOrder) {
    const MenuData menu = readMenuText(kSmallMenu, "menu.json");
    ASSERT_EQ(menu.menuGroups.size(), 2U);
    EXPECT_EQ(menu.menuGroups[0].resourceModule, "");
    EXPECT_EQ(menu.menuGroups[1].resourceModule, "B.xmx");
    ASSERT_EQ(menu.panels.size(), 2U);
    EXPECT_EQ(menu.panels[0].title, "Main panel");
    EXPECT_EQ(menu.panels[0].image, "I");
    EXPECT_EQ(menu.panels[0].toolPanels, (std::vector<std::string>{"T", "F"}));
    EXPECT_EQ(menu.panels[1].menuGroup, "B");
    ASSERT_EQ(menu.toolPanels.size(), 3U);
    EXPECT_EQ(menu.toolPanels[0].items[0].flyoutId, "F");
    ASSERT_EQ(menu.toolPanels[1].items.size(), 2U);
    EXPECT_EQ(menu.toolPanels[1].items[1].type, MenuItemType::Separator);
}

TEST(MenuReaderTest, WorkspacesListPanelsByIdAndMenuGroup) {
    const MenuData menu = readMenuText(kSmallMenu, "menu.json");
    EXPECT_EQ(menu.currentWorkspace, "W2");
    ASSERT_EQ(menu.workspaces.size(), 2U);
    EXPECT_EQ(menu.workspaces[0].visiblePanels,
              (std::vector<PanelKey>{{"Main", "B"}, {"Main", "A"}}));
    EXPECT_TRUE(menu.workspaces[1].visiblePanels.empty());
}

TEST(MenuReaderTest, ToolPaletteGroupsKeepTheirOrder) {
    const MenuData menu = readMenuText(kSmallMenu, "menu.json");
    ASSERT_EQ(menu.toolPaletteSchemes.size(), 1U);
    EXPECT_EQ(menu.toolPaletteSchemes[0].name, "Scheme");
    EXPECT_EQ(menu.toolPaletteSchemes[0].groups, (std::vector<std::string>{"Walls", "Doors"}));
}

TEST(MenuReaderTest, WorkspacesAndToolPaletteGroupsMayBeLeftOut) {
    const MenuData menu = readMenuText(menuWith(""), "menu.json");
    EXPECT_TRUE(menu.workspaces.empty());
    EXPECT_EQ(menu.currentWorkspace, "");
    EXPECT_TRUE(menu.toolPaletteSchemes.empty());
}

TEST(MenuReaderTest, OneItemIdMayStandOnManyToolPanels) {
    const std::string item = R"({"type": "button", "id": "ID_1"})";
    const MenuData menu = readMenuText(
        menuWith(toolPanel("T", item + "," + item) + "," + toolPanel("U", item)), "menu.json");
    EXPECT_EQ(menu.toolPanels[0].items.size() + menu.toolPanels[1].items.size(), 3U);
}

TEST(MenuReaderTest, AMissingSectionIsNamed) {
    EXPECT_EQ(complaintAbout("{}"), "menu.json:1: needs the key \"menuGroups\"");
    EXPECT_EQ(complaintAbout(R"({"menuGroups": []})"), "menu.json:1: needs the key \"toolPanels\"");
    EXPECT_EQ(complaintAbout(R"({"menuGroups": [], "toolPanels": []})"),
              "menu.json:1: needs the key \"panels\"");
}

TEST(MenuReaderTest, AnUnknownKeyIsRefusedInEverySection) {
    EXPECT_EQ(complaintAbout(menuWith("", "", "\"pannels\": []")),
              "menu.json:4: /pannels: unknown key \"pannels\"");
    EXPECT_EQ(complaintAbout(R"({"menuGroups": [{"nam": "A"}], "toolPanels": [], "panels": []})"),
              "menu.json:1: /menuGroups/0/nam: unknown key \"nam\"");
    EXPECT_EQ(complaintAbout(menuWith(R"({"title": "T"})")),
              "menu.json:2: /toolPanels/0/title: unknown key \"title\"");
    EXPECT_EQ(complaintAbout(menuWith("", R"({"visible": true})")),
              "menu.json:3: /panels/0/visible: unknown key \"visible\"");
    EXPECT_EQ(complaintAbout(menuWith("", "", R"("workspaces": [{"id": "W"}])")),
              "menu.json:4: /workspaces/0/id: unknown key \"id\"");
}

TEST(MenuReaderTest, AWrongTypeIsRefused) {
    EXPECT_EQ(complaintAbout("[]"), "menu.json:1: must be an object, not an array");
    EXPECT_EQ(complaintAbout(menuWith("", R"({"menuGroup": 1, "id": "P"})")),
              "menu.json:3: /panels/0/menuGroup: must be a string, not a number");
    EXPECT_EQ(complaintAbout(menuWith("", "", R"("toolPaletteGroups": {"S": ["G", 2]})")),
              "menu.json:4: /toolPaletteGroups/S/1: must be a string, not a number");
}

TEST(MenuReaderTest, DuplicatesAreRefusedAtTheSecond) {
    EXPECT_EQ(complaintAbout("{\"menuGroups\": [{\"name\": \"A\"},\n{\"name\": \"A\"}],"
                             "\"toolPanels\": [], \"panels\": []}"),
              "menu.json:2: /menuGroups/1/name: a second menu group \"A\"");
    EXPECT_EQ(complaintAbout(menuWith(toolPanel("T", "") + ",\n" + toolPanel("T", ""))),
              "menu.json:3: /toolPanels/1/id: a second tool panel \"T\" in menu group \"A\"");
    EXPECT_EQ(complaintAbout(menuWith("", panel("P", "") + ",\n" + panel("P", ""))),
              "menu.json:4: /panels/1/id: a second panel \"P\" in menu group \"A\"");
    EXPECT_EQ(complaintAbout(menuWith("", "",
                                      "\"workspaces\": [{\"name\": \"W\", \"panels\": []},\n"
                                      "{\"name\": \"W\", \"panels\": []}]")),
              "menu.json:5: /workspaces/1/name: a second workspace \"W\"");
}

TEST(MenuReaderTest, AnUnknownMenuGroupIsRefused) {
    EXPECT_EQ(complaintAbout(menuWith(R"({"menuGroup": "a", "id": "T", "items": []})")),
              "menu.json:2: /toolPanels/0/menuGroup: no menu group \"a\"");
    EXPECT_EQ(complaintAbout(menuWith("", R"({"menuGroup": "B", "id": "P"})")),
              "menu.json:3: /panels/0/menuGroup: no menu group \"B\"");
}

TEST(MenuReaderTest, AToolPanelOfAnotherMenuGroupIsUnknownToAPanel) {
    const std::string text = R"({"menuGroups": [{"name": "A"}, {"name": "B"}],
        "toolPanels": [{"menuGroup": "B", "id": "T", "items": []}],
        "panels": [)" + panel("P", "\"T\"") +
                             "]}";
    EXPECT_EQ(complaintAbout(text),
              "menu.json:3: /panels/0/toolPanels/0: no tool panel \"T\" in menu group \"A\"");
}

TEST(MenuReaderTest, AFlyoutToAnUnknownToolPanelIsRefused) {
    EXPECT_EQ(complaintAbout(menuWith(toolPanel("T", flyoutTo("U")))),
              "menu.json:2: /toolPanels/0/items/0/flyout: no tool panel \"U\" in menu group \"A\"");
}

TEST(MenuReaderTest, AWorkspaceListsKnownPanelsOnceEach) {
    const std::string key = R"({"panel": "P", "menuGroup": "A"})";
    const auto workspace = [](const std::string& panels) {
        return R"("workspaces": [{"name": "W", "panels": [)" + panels + "]}]";
    };
    EXPECT_EQ(complaintAbout(menuWith("", "", workspace(key))),
              "menu.json:4: /workspaces/0/panels/0/panel: no panel \"P\" in menu group \"A\"");
    EXPECT_EQ(complaintAbout(menuWith("", panel("P", ""), workspace(key + "," + key))),
              "menu.json:4: /workspaces/0/panels/1/panel: panel \"P\" stands twice in one "
              "workspace");
}

TEST(MenuReaderTest, WithWorkspacesOneMustBeCurrent) {
    const std::string workspaces = R"("workspaces": [{"name": "W", "panels": []}])";
    EXPECT_EQ(complaintAbout(menuWith("", "", workspaces)),
              "menu.json:1: needs the key \"currentWorkspace\"");
    EXPECT_EQ(complaintAbout(menuWith("", "", workspaces + R"(, "currentWorkspace": "V")")),
              "menu.json:4: /currentWorkspace: no workspace \"V\"");
    EXPECT_EQ(complaintAbout(menuWith("", "", R"("currentWorkspace": "V")")),
              "menu.json:4: /currentWorkspace: no workspace \"V\"");
}

TEST(MenuReaderTest, AFlyoutThatLeadsBackToItselfIsRefusedWithItsPath) {
    EXPECT_EQ(complaintAbout(menuWith(toolPanel("T", flyoutTo("T")))),
              "menu.json:2: /toolPanels/0/items/0: the flyout leads back to itself: T > T");
    EXPECT_EQ(complaintAbout(
                  menuWith(toolPanel("S", flyoutTo("T")) + ",\n" + toolPanel("T", flyoutTo("U")) +
                           ",\n" + toolPanel("U", R"({"type": "separator"}, )" + flyoutTo("T")))),
              "menu.json:4: /toolPanels/2/items/1: the flyout leads back to itself: T > U > T");
}

TEST(MenuReaderTest, AFlyoutCycleIsTakenOnRequest) {
    const std::string text = menuWith(toolPanel("T", flyoutTo("T")));
    const MenuData menu = readMenuText(text, "menu.json", {.allowFlyoutCycles = true});
    EXPECT_EQ(menu.toolPanels[0].items[0].flyoutId, "T");
}

TEST(MenuReaderTest, AMissingFileIsNamed) {
    try {
        readMenuFile("no/such/panels.json");
        FAIL() << "a missing file was read";
    } catch (const InputError& error) {
        EXPECT_EQ(std::string(error.what()).find("no/such/panels.json: cannot be opened"), 0U);
    }
}

}  // namespace workbench
