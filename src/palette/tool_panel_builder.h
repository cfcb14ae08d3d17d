#pragma once

#include "palette/item_index.h"

#include <hostapi/types.h>
#include <hostapi/window/geometry.h>
#include <hostapi/zorq/menu_data.h>

#include <vector>

class CQrUiToolPanel;
class CVxDaPanel;

/// Fills a new panel with tool panels from the host's menu data, and the tool panels with items,
/// flyouts and custom controls.
class VxDaToolPanelBuilder {
public:
    /// Items are entered into `items` and windows of custom controls appended to `controls`; both
    /// must outlive the builder. `rect` is the place in which tool panels are made.
    VxDaToolPanelBuilder(VxDaItemIndex& items, std::vector<HWND>& controls, CVxDaPanel& panel,
                         const CRect& rect);

    /// Adds a tool panel with its items; below a title with an image its rows are indented. Nothing
    /// if its window can't be made.
    void addToolPanel(const VxToolPanelData& data, bool hasImage);

private:
    /// The flyouts that are being filled, outermost first.
    using FlyoutPath = CStringArray;

    void addItem(CQrUiToolPanel& toolPanel, VxToolPanelItemData& data);
    void addFlyout(CQrUiToolPanel& toolPanel, CQrUiToolPanelItem& flyout,
                   const VxToolPanelItemData& data, FlyoutPath& path);
    void addFlyoutItems(CQrUiToolPanel& toolPanel, CQrUiToolPanelItem& flyout,
                        const VxToolPanelData& data, FlyoutPath& path);
    bool createItemControl(CQrUiToolPanel& toolPanel, CQrUiToolPanelItem& item,
                           const VxToolPanelItemData& data);

    VxDaItemIndex& m_items;
    std::vector<HWND>& m_controls;
    CVxDaPanel& m_panel;
    const VxString m_menuGroup;
    const CRect m_rect;  // client coordinates of the panel set
};
