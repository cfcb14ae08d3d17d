#pragma once

#include <hostapi/qrui18/tool_panel_item.h>

#include <vector>

/// What the toolkit keeps of an item.
struct CQrUiToolPanelItem::Record {
    CQrUiToolPanel* toolPanel = nullptr;   ///< Not owned.
    VxToolPanelItemData* data = nullptr;   ///< Not owned; null for none.
    CQrUiToolPanelItem* flyout = nullptr;  ///< That holds the item, not owned; null for none.
    int type = kItemButton;
    UINT state = 0;
    UINT style = 0;
    VxString id;
    VxString name;
    HBITMAP smallImage = nullptr;  ///< Owned; null for none.
    HBITMAP largeImage = nullptr;  ///< Owned; null for none.
    HWND control = nullptr;        ///< Null for none.
    bool controlHidden = false;    ///< The layout hid the control along with the item.
    bool asked = false;            ///< The custom control has told how it stands in its row.
    bool sharesRow = true;         ///< What it told: it shares a row with other items.
    bool laidOut = false;          ///< It has stood on a panel; from then on a user sees it.
    CRect rect;                    ///< In the tool panel's client area.
    std::vector<CQrUiToolPanelItem*> flyoutItems;  ///< Owned.
    CQrUiToolPanelItem* currentTool = nullptr;     ///< One of `flyoutItems`; null for none.
};

namespace workbench {

/// The ID by which menu data and users know an item: that of its menu data, else its own.
const VxString& knownId(const CQrUiToolPanelItem& item);

}  // namespace workbench
