#pragma once

#include <string>
#include <vector>

namespace workbench {

/// The kinds of item on a tool panel; the numbers are those of the toolkit.
enum class MenuItemType { Button = 0, Flyout = 1, Control = 2, Separator = 3, RowBreak = 4 };

/// One item of a tool panel. What a type has no use for is empty.
struct MenuItem {
    MenuItemType type = MenuItemType::Button;
    std::string id;               ///< the item's key; one key may stand on several tool panels
    std::string name;             ///< label and tooltip
    std::string smallImage;       ///< resource key or file name of the 16-pixel picture
    std::string largeImage;       ///< resource key or file name of the 32-pixel picture
    std::string controlName;      ///< of a control: the custom control to make
    std::string macro;            ///< text for the command line on a click
    std::string flyoutId;         ///< of a flyout: the tool panel, same menu group, with its tools
    bool flyoutOwnImage = false;  ///< of a flyout: has a picture beside its current tool's
    std::string module;           ///< file name of the module that serves the item
};

/// A named row of items: part of a panel, or the tools of a flyout.
struct MenuToolPanel {
    std::string menuGroup;
    std::string id;  ///< unique within its menu group
    std::vector<MenuItem> items;
};

/// A panel of the dashboard.
struct MenuPanel {
    std::string id;  ///< unique within its menu group
    std::string title;
    std::string menuGroup;
    std::string image;                    ///< resource key or file name, or empty
    std::vector<std::string> toolPanels;  ///< IDs of tool panels of the same menu group, in order
};

/// One partial menu: the panels and tools that came with it, and where their pictures are.
struct MenuGroup {
    std::string name;            ///< unique
    std::string resourceModule;  ///< file name of its pictures' module, or empty
};

/// Names a panel: its ID alone is unique only within a menu group.
struct PanelKey {
    std::string panelId;
    std::string menuGroup;

    bool operator==(const PanelKey&) const = default;
};

/// An arrangement of the host's window, of which only the panels count here.
struct Workspace {
    std::string name;                     ///< unique
    std::vector<PanelKey> visiblePanels;  ///< in the order on screen
};

/// The groups of the tool palette window under one scheme.
struct ToolPaletteScheme {
    std::string name;                 ///< unique, such as "ToolPaletteScheme"
    std::vector<std::string> groups;  ///< in the order of the menu
};

/// The host's customization data: all that the dashboard's panels are made from. UTF-8 throughout.
struct MenuData {
    std::vector<MenuGroup> menuGroups;
    std::vector<MenuToolPanel> toolPanels;
    std::vector<MenuPanel> panels;      ///< in the host's order
    std::vector<Workspace> workspaces;  ///< empty: the host has no workspace data
    std::string currentWorkspace;       ///< empty exactly if there are no workspaces
    std::vector<ToolPaletteScheme> toolPaletteSchemes;
};

}  // namespace workbench
