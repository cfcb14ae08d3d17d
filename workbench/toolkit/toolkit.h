#pragma once

#include "workbench/toolkit/balloon_tips.h"
#include "workbench/toolkit/kept_bars.h"
#include "workbench/toolkit/main_frame.h"
#include "workbench/toolkit/message_boxes.h"
#include "workbench/toolkit/mouse.h"
#include "workbench/toolkit/object_states.h"
#include "workbench/toolkit/picture_table.h"
#include "workbench/toolkit/popup_menus.h"
#include "workbench/toolkit/shade.h"
#include "workbench/toolkit/shown_texts.h"
#include "workbench/toolkit/state_table.h"
#include "workbench/toolkit/text_notes.h"
#include "workbench/toolkit/theme_manager.h"
#include "workbench/toolkit/tool_registry.h"
#include "workbench/toolkit/tool_tips.h"

#include <hostapi/qrui18.h>

namespace workbench {

/// The host's toolkit: the main frame with the palette sets in it, themes, pictures, and everything
/// that speaks to the user. What the toolkit keeps for an object stands in a table by object.
class Toolkit {
public:
    /// All of them must outlive the toolkit.
    Toolkit(WindowSystem& windows, Journal& journal, Answers& answers, const ShownTexts& texts);
    Toolkit(const Toolkit&) = delete;
    Toolkit& operator=(const Toolkit&) = delete;

    // What it was given, for its widgets and the user's hand.

    WindowSystem& windows() const { return m_windows; }
    Journal& journal() const { return m_journal; }
    Answers& answers() const { return m_answers; }
    const ShownTexts& texts() const { return m_texts; }

    // Its parts.

    MainFrame& frame() { return m_frame; }
    KeptBars& bars() { return m_bars; }
    ThemeManager& themes() { return m_themes; }
    ToolRegistry& tools() { return m_tools; }
    PictureTable& pictures() { return m_pictures; }
    const PictureTable& pictures() const { return m_pictures; }
    BalloonTips& balloons() { return m_balloons; }
    ToolTips& toolTips() { return m_toolTips; }
    MessageBoxes& boxes() { return m_boxes; }
    PopupMenus& menus() { return m_menus; }
    Mouse& mouse() { return m_mouse; }

    StateTable<CQrUiPaletteSet, PaletteSetState>& paletteSets() { return m_paletteSets; }
    StateTable<CQrUiPanelSet, PanelSetState>& panelSets() { return m_panelSets; }
    StateTable<CQrUiPanel, PanelState>& panels() { return m_panels; }
    StateTable<CQrUiToolPanel, ToolPanelState>& toolPanels() { return m_toolPanels; }

    /// The size in pixels that tools are shown in, 16 or 32. A new size shows at the next layout.
    int iconSize() const { return m_iconSize; }
    void setIconSize(int pixels) { m_iconSize = pixels; }

    Shade shade() const { return m_shade; }
    /// Shows everything in a shade, as the user chooses it: who watches the theme "ToolPanel" is told
    /// that all of it changed, then the palette sets that have it. Nothing if it has the shade.
    void setShade(Shade shade);

    /// One idle tick: the palette sets bring their commands up to date, and a balloon over what has
    /// gone goes too.
    void idleUpdate();

    /// The number of items that have not ended.
    int liveItems() const { return m_liveItems; }
    void noteItemMade() { ++m_liveItems; }
    void noteItemEnded() { --m_liveItems; }

private:
    WindowSystem& m_windows;
    Journal& m_journal;
    Answers& m_answers;
    const ShownTexts& m_texts;
    TextNotes m_notes;
    ToolRegistry m_tools;
    ThemeManager m_themes;
    PictureTable m_pictures;
    StateTable<CQrUiToolPanel, ToolPanelState> m_toolPanels;
    StateTable<CQrUiPanel, PanelState> m_panels;
    StateTable<CQrUiPanelSet, PanelSetState> m_panelSets;
    StateTable<CQrUiPaletteSet, PaletteSetState> m_paletteSets;
    KeptBars m_bars;
    MainFrame m_frame;
    BalloonTips m_balloons;
    ToolTips m_toolTips;
    MessageBoxes m_boxes;
    PopupMenus m_menus;
    Mouse m_mouse;
    int m_iconSize = 16;  // pixels
    Shade m_shade = Shade::Light;
    int m_liveItems = 0;
};

}  // namespace workbench
