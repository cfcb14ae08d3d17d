#pragma once

#include "palette/panel.h"

#include <hostapi/types.h>
#include <hostapi/vxut.h>

#include <memory>
#include <vector>

/// A panel that the host knows, shown or not. Menu group and ID together identify it.
struct PanelRecord {
    VxString id;
    VxString title;
    VxString image;  ///< Resource key or file name; empty for none.
    VxString menuGroup;
    VxUtResString toolPaletteGroup;  ///< Empty for none. A made panel has its own copy.
    CStringArray toolPanelIds;
    std::unique_ptr<CVxDaPanel> panel;  ///< Null until first shown.
    bool visible = true;                ///< The panel is to be shown.

    /// Whether the panel was made and has the visible style.
    bool isOnShow() const { return panel != nullptr && (panel->GetStyle() & WS_VISIBLE) != 0; }
};

/// In the order on screen. Each record keeps its place in memory when the order changes.
using PanelRecords = std::vector<std::unique_ptr<PanelRecord>>;
