#include "palette/panel.h"

#include "tests/palette/palette_fixture.h"
#include "workbench/menu/menu_host.h"
#include "workbench/palettes/tool_palettes.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <stdexcept>

namespace {

using Names = std::vector<std::string>;

class PanelTest : public PaletteTest {
protected:
    using PaletteTest::PaletteTest;
    CVxDaPanel& layers() { return *panel(L"MAIN", L"Layers"); }
    void command(UINT number) { layers().SendMessage(WM_COMMAND, number); }
    Names groups() { return labels(popup(menuOf(layers()), L"Tool Palette Group")); }
    static VxUtResString textOf(const wchar_t* text) {
        VxUtResString result;
        result.setText(text);
        return result;
    }
};

TEST_F(PanelTest, TheContextMenuHasItsLinesInOrder) {
    show();
    EXPECT_EQ(labels(menuOf(layers())),
              (Names{"Tool Palette Group", "Hide", "Help", "-", "Panels", "-", "Customize..."}));
    EXPECT_EQ(labels(popup(menuOf(layers()), L"Panels")),
              (Names{"*Layers", "*Drawing", "*House", "*Spare"}));
}

TEST_F(PanelTest, TheContextMenuIsFilledLineByLine) {
    show();
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 1, L"Collapse");
    forget();
    EXPECT_EQ(layers().AddContextMenuItems(menu), 1);
    EXPECT_EQ(takeLines({"CMenu::AppendMenu", "CMenu::CreatePopupMenu", "LoadString",
                         "VxTcUiGetToolPaletteGroups"}),
              (Names{"CMenu::AppendMenu(2048, 0, null)",
                     "CMenu::CreatePopupMenu()",
                     "LoadString(206)",
                     "CMenu::AppendMenu(16, 0, \"Tool Palette Group\")",
                     "VxTcUiGetToolPaletteGroups(\"ToolPaletteScheme\")",
                     "LoadString(257)",
                     "CMenu::AppendMenu(0, 53246, \"Doors\")",
                     "CMenu::AppendMenu(0, 53248, \"Windows\")",
                     "LoadString(209)",
                     "CMenu::AppendMenu(8, 53249, \"None\")",
                     "LoadString(207)",
                     "CMenu::AppendMenu(0, 37331, \"Hide\")",
                     "LoadString(205)",
                     "CMenu::AppendMenu(0, 37330, \"Help\")",
                     "CMenu::CreatePopupMenu()",
                     "CMenu::AppendMenu(8, 53500, \"Layers\")",
                     "CMenu::AppendMenu(8, 53501, \"Drawing\")",
                     "CMenu::AppendMenu(8, 53502, \"House\")",
                     "CMenu::AppendMenu(8, 53503, \"Spare\")",
                     "CMenu::AppendMenu(2048, 0, null)",
                     "LoadString(204)",
                     "CMenu::AppendMenu(16, 0, \"Panels\")",
                     "CMenu::AppendMenu(2048, 0, null)",
                     "LoadString(1292)",
                     "CMenu::AppendMenu(0, 37332, \"Customize...\")"}));
}

TEST_F(PanelTest, ASecondMenuHasPopupsOfItsOwnWhileTheFirstIsStillThere) {
    show();
    CMenu first;
    first.CreatePopupMenu();
    ASSERT_EQ(layers().AddContextMenuItems(first), 1);
    EXPECT_EQ(groups(), (Names{"Doors", "Windows", "*None"}));
    EXPECT_EQ(labels(popup(menuOf(layers()), L"Panels")),
              (Names{"*Layers", "*Drawing", "*House", "*Spare"}));
}

TEST_F(PanelTest, AMenuThatTheToolkitHasBegunGetsASeparatorFirst) {
    show();
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 1, L"Collapse");
    layers().AddContextMenuItems(menu);
    const auto lines = bench().windows().menus().read(menu.m_hMenu);
    EXPECT_EQ(labels(lines)[1], "-");
    EXPECT_EQ(labels(lines)[2], "Tool Palette Group");
}

TEST_F(PanelTest, TheGroupThatIsNeverOfferedLeavesItsNumberFree) {
    show();
    const auto lines = popup(menuOf(layers()), L"Tool Palette Group");
    EXPECT_EQ(labels(lines), (Names{"Doors", "Windows", "*None"}));
    EXPECT_EQ(lines[0].command, 53246U);
    EXPECT_EQ(lines[1].command, 53248U);
    EXPECT_EQ(lines[2].command, 53249U);
}

TEST_F(PanelTest, TheChosenGroupIsChecked) {
    show();
    menuOf(layers());
    command(53248);
    EXPECT_EQ(layers().toolPaletteGroup().text(), L"Windows");
    EXPECT_EQ(groups(), (Names{"Doors", "*Windows", "None"}));
}

TEST_F(PanelTest, TheEntryForNoGroupEmptiesIt) {
    show();
    layers().setToolPaletteGroup(textOf(L"Doors"));
    menuOf(layers());
    command(53249);
    EXPECT_TRUE(layers().toolPaletteGroup().isEmpty());
    EXPECT_EQ(groups(), (Names{"Doors", "Windows", "*None"}));
}

TEST_F(PanelTest, AChosenGroupIsThePanelsAloneUntilTheStateIsSaved) {
    show();
    menuOf(layers());
    command(53248);
    panelSet().loadFromProfile();
    EXPECT_EQ(layers().toolPaletteGroup().text(), L"Windows") << "nothing was saved";
    ASSERT_EQ(panelSet().saveToProfile(), 1);
    menuOf(layers());
    command(53246);
    panelSet().loadFromProfile();
    EXPECT_EQ(layers().toolPaletteGroup().text(), L"Windows");
}

TEST_F(PanelTest, AGroupThatTheSchemeNoLongerHasIsKeptAsACheckedExtraLine) {
    show();
    layers().setToolPaletteGroup(textOf(L"Roofs"));
    const auto lines = popup(menuOf(layers()), L"Tool Palette Group");
    EXPECT_EQ(labels(lines), (Names{"Doors", "Windows", "*Roofs", "None"}));
    EXPECT_EQ(lines[2].command, 53249U);
    command(53249);
    EXPECT_EQ(layers().toolPaletteGroup().text(), L"Roofs");
}

TEST_F(PanelTest, AGroupIsComparedExactly) {
    show();
    layers().setToolPaletteGroup(textOf(L"doors"));
    EXPECT_EQ(groups(), (Names{"Doors", "Windows", "*doors", "None"}));
}

TEST_F(PanelTest, TheNumberOfTheGroupThatIsNeverOfferedChoosesItAllTheSame) {
    show();
    menuOf(layers());
    command(53247);
    EXPECT_EQ(layers().toolPaletteGroup().text(), L"ALL palettes");
    EXPECT_EQ(groups(), (Names{"Doors", "Windows", "*ALL palettes", "None"}));
}

TEST_F(PanelTest, WithoutTheSchemeThereIsOnlyTheEntryForNoGroup) {
    show();
    fail("VxTcUiGetToolPaletteGroups");
    const auto lines = popup(menuOf(layers()), L"Tool Palette Group");
    EXPECT_EQ(labels(lines), Names{"*None"});
    EXPECT_EQ(lines.at(0).command, 53246U);
}

TEST_F(PanelTest, AChoiceOutsideOfTheListIsAnInvalidArgument) {
    show();
    menuOf(layers());
    EXPECT_THROW(command(53250), std::invalid_argument);
    EXPECT_TRUE(layers().toolPaletteGroup().isEmpty());
}

TEST_F(PanelTest, AChoiceBeforeTheFirstMenuIsAnInvalidArgument) {
    show();
    EXPECT_THROW(command(53246), std::invalid_argument);
}

/// Groups whose names are those of the group that is never offered and of the entry for no group,
/// and one that the scheme has twice.
const char* const kGroupsMenu = R"({
  "menuGroups": [{"name": "MAIN"}],
  "panels": [{"menuGroup": "MAIN", "id": "Layers", "title": "Layers", "toolPanels": []}],
  "toolPaletteGroups": {"ToolPaletteScheme":
    ["ALL palettes", "all PALETTES", "Doors", "None", "none", "Doors"]},
  "toolPanels": []
})";

class GroupNameTest : public PanelTest {
protected:
    GroupNameTest() : PanelTest(kGroupsMenu) {}
    void showWithGroup(const wchar_t* group) {
        show();
        layers().setToolPaletteGroup(textOf(group));
    }
};

TEST_F(GroupNameTest, OnlyTheFirstGroupThatIsNeverOfferedIsPassedOver) {
    show();
    const auto lines = popup(menuOf(layers()), L"Tool Palette Group");
    EXPECT_EQ(labels(lines), (Names{"all PALETTES", "Doors", "None", "none", "Doors", "*None"}));
    EXPECT_EQ(lines.at(0).command, 53247U);
    EXPECT_EQ(lines.at(5).command, 53252U);
}

TEST_F(GroupNameTest, AnOwnGroupThatIsNeverOfferedIsACheckedExtraLine) {
    showWithGroup(L"ALL palettes");
    const auto lines = popup(menuOf(layers()), L"Tool Palette Group");
    EXPECT_EQ(labels(lines),
              (Names{"all PALETTES", "Doors", "None", "none", "Doors", "*ALL palettes", "None"}));
    EXPECT_EQ(lines.at(5).command, 53252U);
}

TEST_F(GroupNameTest, AnOwnGroupThatTheSchemeHasTwiceIsCheckedTwice) {
    showWithGroup(L"Doors");
    EXPECT_EQ(groups(), (Names{"all PALETTES", "*Doors", "None", "none", "*Doors", "None"}));
}

TEST_F(GroupNameTest, AGroupNamedAsTheEntryForNoGroupEmptiesIt) {
    showWithGroup(L"Doors");
    menuOf(layers());
    command(53249);
    EXPECT_TRUE(layers().toolPaletteGroup().isEmpty());
}

TEST_F(GroupNameTest, AGroupNamedAsThatEntryButForTheCaseIsAGroup) {
    showWithGroup(L"Doors");
    menuOf(layers());
    command(53250);
    EXPECT_EQ(layers().toolPaletteGroup().text(), L"none");
}

/// A panel on a panel set of the toolkit's own.
struct LonePanel {
    explicit LonePanel(CWnd& parent) {
        EXPECT_NE(set.Create(WS_CHILD | WS_VISIBLE, {0, 0, 200, 300}, &parent, 2), 0);
        EXPECT_NE(panel.Create(WS_CHILD | WS_VISIBLE, L"Lone", &set), 0);
    }
    CQrUiPanelSet set;
    CVxDaPanel panel;
};

TEST_F(PanelTest, OnAPlainPanelSetTheMenuHasNoPanels) {
    show();
    LonePanel lone(dashboard());
    EXPECT_EQ(labels(menuOf(lone.panel)),
              (Names{"Tool Palette Group", "Hide", "Help", "-", "Customize..."}));
}

TEST_F(PanelTest, OnAPlainPanelSetHideHidesTheWindow) {
    show();
    const Names before = shown();
    LonePanel lone(dashboard());
    lone.panel.SendMessage(WM_COMMAND, 37331);
    EXPECT_EQ(lone.panel.GetStyle() & WS_VISIBLE, 0U);
    EXPECT_EQ(shown(), before);
}

TEST_F(PanelTest, OnAPlainPanelSetAPanelCommandTogglesNothing) {
    show();
    const Names before = shown();
    LonePanel lone(dashboard());
    lone.panel.SendMessage(WM_COMMAND, 53500);
    EXPECT_EQ(shown(), before);
    EXPECT_NE(lone.panel.GetStyle() & WS_VISIBLE, 0U);
}

TEST_F(PanelTest, WithoutAPanelsMenuTheMenuIsRefused) {
    show();
    CMenu menu;
    menu.CreatePopupMenu();
    menuOf(layers());
    // The first popup of the second menu is that of the groups.
    bench().faults().fail("CMenu::CreatePopupMenu");
    EXPECT_EQ(layers().AddContextMenuItems(menu), 0);
    bench().faults().unfail("CMenu::CreatePopupMenu");
}

TEST_F(PanelTest, HideTakesThePanelOffThenLaysOutAndReportsThenHidesTheWindow) {
    show();
    command(37331);
    const Names calls = takeLines({"CWnd::ShowWindow", "CWnd::PostMessage"});
    EXPECT_EQ(calls,
              (Names{"CWnd::ShowWindow(\"Layers\", 0)", "CWnd::PostMessage(\"CQrUiPalette\", 1534)",
                     "CWnd::ShowWindow(\"Layers\", 0)"}));
}

TEST_F(PanelTest, HideTakesThePanelOffShow) {
    show();
    command(37331);
    EXPECT_EQ(shown(), (Names{"MAIN/Draw", "OTHER/Draw", "MAIN/Spare"}));
    EXPECT_EQ(panelSet().HasPanel(&layers()), 0);
    EXPECT_EQ(layers().GetStyle() & WS_VISIBLE, 0U);
}

TEST_F(PanelTest, HelpOpensTheDashboardsTopic) {
    show();
    command(37330);
    EXPECT_EQ(takeLines(), Names{"vxedHelp(null, \"DASHBOARD\", 0)"});
}

/// A panel command, and the index of the panel that it toggles.
class ToggleTest : public PanelTest, public testing::WithParamInterface<std::size_t> {};

TEST_P(ToggleTest, GoesToThePanelSet) {
    show();
    Names expected = shown();
    expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(GetParam()));
    command(53500 + static_cast<UINT>(GetParam()));
    EXPECT_EQ(shown(), expected);
}

INSTANTIATE_TEST_SUITE_P(Panels, ToggleTest, testing::Values(0U, 1U, 2U, 3U));

TEST_F(PanelTest, CustomizeSelectsThePanelAndSendsTheCommand) {
    show();
    command(37332);
    ASSERT_TRUE(bench().menu().customization().selection().has_value());
    EXPECT_EQ(bench().menu().customization().selection()->panelId, "Layers");
    EXPECT_EQ(bench().menu().customization().selection()->menuGroup, "MAIN");
    EXPECT_EQ(takeLines({"zorqiGetCustomizationInterface", "vxedSendMenuStringToExecute"}),
              (Names{"zorqiGetCustomizationInterface()",
                     "vxedSendMenuStringToExecute(object, \"_.CUI \", 1)"}));
}

TEST_F(PanelTest, WithoutTheCustomizationDialogTheCommandIsSentAllTheSame) {
    show();
    fail("zorqiGetCustomizationInterface");
    command(37332);
    EXPECT_FALSE(bench().menu().customization().selection().has_value());
    EXPECT_EQ(sent().size(), 1U);
}

TEST_F(PanelTest, APanelWithoutAGroupOpensNothing) {
    show();
    EXPECT_EQ(layers().OnActivatePanel(), 0);
    EXPECT_EQ(callCount("VxTcUiGetManager"), 0);
}

TEST_F(PanelTest, APanelWithAGroupOpensTheToolPalettesOnIt) {
    show();
    layers().setToolPaletteGroup(textOf(L"Windows"));
    EXPECT_EQ(layers().OnActivatePanel(), 1);
    ASSERT_NE(bench().toolPalettes().window(), nullptr);
    EXPECT_EQ(bench().toolPalettes().window()->activeGroup(), L"Windows");
    EXPECT_TRUE(bench().toolPalettes().window()->isOnScreen());
}

}  // namespace
