#include "workbench/menu/menu_catalog.h"
#include "workbench/menu/menu_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <set>
#include <string>
#include <vector>

namespace workbench {

namespace {

constexpr const char* kDashboard = "VxDashboard.qlx";

/// The menu that ships with the workbench, and what a user could ask about it.
class ExamplePanelsTest : public testing::Test {
protected:
    std::vector<MenuItem> items(MenuItemType type) const {
        std::vector<MenuItem> found;
        for (const MenuToolPanel& toolPanel : m_menu.data().toolPanels) {
            std::copy_if(toolPanel.items.begin(), toolPanel.items.end(), std::back_inserter(found),
                         [type](const MenuItem& item) { return item.type == type; });
        }
        return found;
    }

    const MenuItem* button(const std::string& id) const {
        for (const MenuToolPanel& toolPanel : m_menu.data().toolPanels) {
            for (const MenuItem& item : toolPanel.items) {
                if (item.type == MenuItemType::Button && item.id == id)
                    return &item;
            }
        }
        return nullptr;
    }

    /// The tool panels that can be seen: those of panels, and those of flyouts on them.
    std::set<const MenuToolPanel*> reachable() const {
        std::set<const MenuToolPanel*> seen;
        for (const MenuPanel& panel : m_menu.data().panels) {
            for (const std::string& id : panel.toolPanels)
                reach(m_menu.findToolPanel(panel.menuGroup, id), seen);
        }
        return seen;
    }

    const MenuCatalog m_menu{readMenuFile(PROJECT_SOURCE_ROOT "/examples/panels.json")};

private:
    void reach(const MenuToolPanel* toolPanel, std::set<const MenuToolPanel*>& seen) const {
        if (!seen.insert(toolPanel).second)
            return;
        for (const MenuItem& item : toolPanel->items) {
            if (item.type == MenuItemType::Flyout)
                reach(m_menu.findToolPanel(toolPanel->menuGroup, item.flyoutId), seen);
        }
    }
};

struct FlyoutRow {
    const char* id;
    std::vector<std::string> tools;
};

}  // namespace

TEST_F(ExamplePanelsTest, EveryCustomControlStandsOnAPanel) {
    const std::vector<MenuItem> controls = items(MenuItemType::Control);
    for (const char* name : {"LayerStateComboControl",
                             "LayerLockTransparencySliderControl",
                             "LayerFilterComboControl",
                             "3DNavZoomSliderControl",
                             "3DNavStepSizeSliderControl",
                             "3DNavStepsPerSecSliderControl",
                             "3DNavViewComboCtrl",
                             "3DNavPointTriplet1",
                             "3DNavPointTriplet2",
                             "LightSliderControl1",
                             "LightSliderControl2",
                             "LightSliderControl3",
                             "LightSliderControl4",
                             "LightSliderControl5",
                             "RenderStyleControl",
                             "RenderProgressControl",
                             "RenderImageQualityControl",
                             "RenderOutputFileControl",
                             "RenderOutputSizeControl",
                             "VSStylesComboControl",
                             "VSEdgeOverhangSliderControl",
                             "VSJitterEdgeSliderControl",
                             "VSEdgeColorControl",
                             "VSSilhouetteEdgeWidthSliderControl",
                             "VSObscuredEdgeColorControl",
                             "VSIntersectionEdgeColorControl",
                             "TextHeightComboControl",
                             "LayerControl",
                             "LineTypeControl",
                             "OPTColorControl",
                             "LineWeightControl",
                             "RefblknameControl",
                             "ViewControl",
                             "NamedViewControl",
                             "ViewportScaleControl",
                             "PlotStyleControl",
                             "UCSControl",
                             "DimStyleControl",
                             "TxtStyleControl",
                             "TblStyleControl",
                             "WorkspacesControl",
                             "UndoSkinnyButtonControl",
                             "RedoSkinnyButtonControl",
                             "MldStyleControl",
                             "FindTextControl"}) {
        const auto control =
            std::find_if(controls.begin(), controls.end(), [name](const MenuItem& item) {
                return item.controlName == name && item.id == name && item.module.empty();
            });
        EXPECT_NE(control, controls.end()) << name;
    }
}

TEST_F(ExamplePanelsTest, TheDashboardServesItsOwnTools) {
    for (const char* id : {"MM_1572",
                           "MM_1573",
                           "ID_Constrained_Orbit",
                           "ID_Free_Orbit",
                           "ID_3dcorbit",
                           "ID_3DWalk",
                           "ID_3DFLY",
                           "ID_3ddistanc",
                           "ID_3dswivel",
                           "ID_Parallel_Projection",
                           "ID_Perspective_Projection",
                           "ID_3DWalk_Settings",
                           "ID_Animation_Play",
                           "ID_Animation_Record",
                           "ID_Animation_Pause",
                           "ID_Animation_Save",
                           "ID_Animation_Settings",
                           "ID_DefaultLighting",
                           "ID_SunStatus",
                           "ID_Light",
                           "ID_Skylight_Off",
                           "ID_Skylight_Background",
                           "ID_Skylight_Illumination"}) {
        ASSERT_NE(button(id), nullptr) << id;
        EXPECT_EQ(button(id)->module, kDashboard) << id;
    }
}

TEST_F(ExamplePanelsTest, NavigationToolsHaveAMacroForWhenNoToolRuns) {
    for (const char* id :
         {"MM_1572", "MM_1573", "ID_Constrained_Orbit", "ID_Free_Orbit", "ID_3dcorbit", "ID_3DWalk",
          "ID_3DFLY", "ID_3ddistanc", "ID_3dswivel", "ID_Parallel_Projection",
          "ID_Perspective_Projection", "ID_3DWalk_Settings"}) {
        ASSERT_NE(button(id), nullptr) << id;
        EXPECT_FALSE(button(id)->macro.empty()) << id;
    }
    EXPECT_EQ(button("ID_3DWalk")->macro, "'_3dwalk\n");
}

TEST_F(ExamplePanelsTest, TheHostServesItsToolsByMacro) {
    for (const char* id :
         {"ID_Camera", "ID_CAMERAS_OnOf", "ID_GeoLocation", "ID_Adjust_Exposure", "ID_DistantLight",
          "ID_VSFACEOPACITY", "ID_VSSILHEDGES", "ID_VSOBSCUREDEDGES", "ID_VSINTERSECTIONEDGES"}) {
        ASSERT_NE(button(id), nullptr) << id;
        EXPECT_FALSE(button(id)->macro.empty()) << id;
        EXPECT_EQ(button(id)->module, "") << id;
    }
}

TEST_F(ExamplePanelsTest, EveryFlyoutHasItsToolsInTheOrderOfTheirValues) {
    const std::vector<FlyoutRow> rows{
        {"TPL_0023", {"ID_VSMM0", "ID_VSMM1", "ID_VSMM2"}},
        {"TPL_0025", {"ID_VSSHADOWS_OFF", "ID_VSSHADOWS_GROUND", "ID_VSSHADOWS_FULL"}},
        {"TPL_0026",
         {"ID_VSFACECOLORMODE_REGU", "ID_VSFACECOLORMODE_MONO", "ID_VSFACECOLORMODE_TINT",
          "ID_VSFACECOLORMODE_DESA"}},
        {"TPL_0027", {"ID_VSFACESTYLE_NONE", "ID_VSFACESTYLE_REAL", "ID_VSFACESTYLE_WARMCOOL"}},
        {"TPL_0028", {"ID_VSEDGES_NONE", "ID_VSEDGES_ISOLINES", "ID_VSEDGES_FACET"}},
        {"TPL_0030", {"ID_Skylight_Off", "ID_Skylight_Background", "ID_Skylight_Illumination"}},
        {"TPL_0042", {"ID_LightingUnitsGeneric", "ID_LightingUnitsAmerican", "ID_LightingUnitsSI"}},
        {"TPL_0044",
         {"ID_VSLIGHTINGQUALITY_FACET", "ID_VSLIGHTINGQUALITY_SMOOTH",
          "ID_VSLIGHTINGQUALITY_SMOOTHEST"}}};
    const std::vector<MenuItem> flyouts = items(MenuItemType::Flyout);
    for (const FlyoutRow& row : rows) {
        const auto flyout =
            std::find_if(flyouts.begin(), flyouts.end(),
                         [&row](const MenuItem& item) { return item.id == row.id; });
        ASSERT_NE(flyout, flyouts.end()) << row.id;
        EXPECT_EQ(flyout->flyoutId, row.id);
        std::vector<std::string> tools;
        for (const MenuItem& item : m_menu.findToolPanel("ZORQ", row.id)->items)
            tools.push_back(item.id);
        EXPECT_EQ(tools, row.tools) << row.id;
    }
}

TEST_F(ExamplePanelsTest, ThereIsAPanelForEachFamilyAndForTheHouse) {
    for (const char* id : {"Navigation", "Animation", "Layers", "Light", "Sun", "Render",
                           "VisualStyles", "Edges", "Text", "Draw"}) {
        const MenuPanel* panel = m_menu.findPanel("ZORQ", id);
        ASSERT_NE(panel, nullptr) << id;
        std::string image = "RCDATA_PANEL_";
        for (const char letter : std::string(id))
            image += static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
        EXPECT_EQ(panel->image, image);
    }
    ASSERT_NE(m_menu.findPanel("HOUSETOOLS", "HouseTools"), nullptr);
    EXPECT_EQ(m_menu.findPanel("HOUSETOOLS", "HouseTools")->image, "RCDATA_PANEL_HOUSETOOLS");
}

TEST_F(ExamplePanelsTest, TwoMenuGroupsOneWithPicturesOfItsOwn) {
    ASSERT_EQ(m_menu.data().menuGroups.size(), 2U);
    ASSERT_NE(m_menu.findMenuGroup("ZORQ"), nullptr);
    EXPECT_EQ(m_menu.findMenuGroup("ZORQ")->resourceModule, "");
    ASSERT_NE(m_menu.findMenuGroup("HOUSETOOLS"), nullptr);
    EXPECT_EQ(m_menu.findMenuGroup("HOUSETOOLS")->resourceModule, "HouseTools.xmx");
}

TEST_F(ExamplePanelsTest, TwoWorkspacesShowDifferentPanels) {
    ASSERT_EQ(m_menu.data().workspaces.size(), 2U);
    EXPECT_EQ(m_menu.data().currentWorkspace, "3D Modeling");
    const Workspace& modeling = m_menu.data().workspaces[0];
    const Workspace& drafting = m_menu.data().workspaces[1];
    EXPECT_EQ(modeling.name, "3D Modeling");
    EXPECT_EQ(drafting.name, "Drafting");
    EXPECT_EQ(modeling.visiblePanels.front(), (PanelKey{"Layers", "ZORQ"}));
    EXPECT_EQ(drafting.visiblePanels.front(), (PanelKey{"Draw", "ZORQ"}));
}

TEST_F(ExamplePanelsTest, TheExampleModuleServesAButtonAndAControl) {
    ASSERT_NE(button("ID_ExampleCount"), nullptr);
    EXPECT_EQ(button("ID_ExampleCount")->module, "VxExampleTools.qlx");
    const std::vector<MenuItem> controls = items(MenuItemType::Control);
    EXPECT_EQ(std::count_if(controls.begin(), controls.end(),
                            [](const MenuItem& item) {
                                return item.controlName == "ExampleScaleControl" &&
                                       item.module == "VxExampleTools.qlx";
                            }),
              1);
}

TEST_F(ExamplePanelsTest, TheToolPalettesHaveTheirScheme) {
    const ToolPaletteScheme* scheme = m_menu.findToolPaletteScheme("ToolPaletteScheme");
    ASSERT_NE(scheme, nullptr);
    EXPECT_GE(scheme->groups.size(), 2U);
}

TEST_F(ExamplePanelsTest, NoToolPanelIsOutOfReach) {
    const std::set<const MenuToolPanel*> seen = reachable();
    for (const MenuToolPanel& toolPanel : m_menu.data().toolPanels)
        EXPECT_TRUE(seen.count(&toolPanel)) << toolPanel.id;
}

TEST_F(ExamplePanelsTest, EveryButtonHasANameAndDoesSomething) {
    for (const MenuItem& item : items(MenuItemType::Button)) {
        EXPECT_FALSE(item.name.empty()) << item.id;
        EXPECT_FALSE(item.macro.empty() && item.module.empty()) << item.id;
    }
}

TEST_F(ExamplePanelsTest, ImageKeysFollowTheItemIds) {
    for (const MenuItem& item : items(MenuItemType::Button)) {
        std::string key = "RCDATA_TOOL_";
        for (const char letter : item.id) {
            const auto byte = static_cast<unsigned char>(letter);
            key += std::isalnum(byte) ? static_cast<char>(std::toupper(byte)) : '_';
        }
        EXPECT_EQ(item.smallImage, key);
        EXPECT_EQ(item.largeImage, key);
    }
}

TEST_F(ExamplePanelsTest, EachCustomControlHasARowOfItsOwn) {
    for (const MenuToolPanel& toolPanel : m_menu.data().toolPanels) {
        for (std::size_t at = 1; at < toolPanel.items.size(); ++at) {
            const bool besideControl = toolPanel.items[at].type == MenuItemType::Control ||
                                       toolPanel.items[at - 1].type == MenuItemType::Control;
            const bool atBreak = toolPanel.items[at].type == MenuItemType::RowBreak ||
                                 toolPanel.items[at - 1].type == MenuItemType::RowBreak;
            EXPECT_TRUE(!besideControl || atBreak) << toolPanel.id << ", item " << at;
        }
    }
}

}  // namespace workbench
