#pragma once

#include "workbench/toolkit/bar_place.h"

#include <hostapi/qrui18.h>

#include <map>
#include <memory>
#include <vector>

namespace workbench {

/// What the toolkit keeps for a tool panel.
struct ToolPanelState {
    std::vector<std::unique_ptr<CQrUiToolPanelItem>> items;
    bool beingPlaced = false;  ///< Whoever places it renews its layout afterwards.
};

/// What the toolkit keeps for a panel.
struct PanelState {
    std::vector<std::unique_ptr<CQrUiToolPanel>> toolPanels;
    std::map<int, HBITMAP> images;  ///< By slot, owned.
    bool collapsed = false;
};

/// What the toolkit keeps for a panel set.
struct PanelSetState {
    std::vector<CQrUiPanel*> panels;  ///< Not owned.
    int scroll = 0;                   ///< Pixels that the panels are moved up.
    int contentHeight = 0;            ///< Pixels of all panels together.
    int laidOutWidth = -1;            ///< Of the last layout in pixels; -1: none yet.
};

/// What the toolkit keeps for a palette set.
struct PaletteSetState {
    GUID toolId{};
    CQrUiTheme* theme = nullptr;  ///< Not owned.
    std::vector<std::unique_ptr<CQrUiPalette>> palettes;
    DWORD edges = 0;             ///< At which docking is allowed, as `EnableDocking` takes it.
    bool dockingAllowed = true;  ///< The user's own choice in the context menu.
    int dockedHeight = -1;       ///< Pixels asked for; -1: all that the edge has.
    bool rolledOut = false;      ///< Anchored, with its palettes on show all the same.
    BarPlace place;
};

}  // namespace workbench
