#pragma once

#include <hostapi/qrui18.h>

#include <string>
#include <string_view>
#include <vector>

namespace workbench {

class Toolkit;
class WindowSystem;

/// The palette set at or above a window, null for none.
CQrUiPaletteSet* paletteSetAbove(const WindowSystem& windows, HWND window);
/// The panel at or above a window, null for none.
CQrUiPanel* panelAbove(const WindowSystem& windows, HWND window);

/// Whether a window is a custom control: a tool panel that stands in another one.
bool isCustomControl(const WindowSystem& windows, HWND window);

/// The panels with an ID, in the order of the window tree, hidden ones too.
std::vector<CQrUiPanel*> findPanels(const WindowSystem& windows, std::wstring_view id);
/// All panels with a window, in the order of the window tree.
std::vector<CQrUiPanel*> allPanels(const WindowSystem& windows);

/// The items with an ID that stand on panels, in flyouts and in controls, in the order of the
/// window tree; the items of a flyout come behind it. The ID is that of the menu data where the item
/// was made from some, and otherwise the item's own.
std::vector<CQrUiToolPanelItem*> findItems(const WindowSystem& windows, std::wstring_view id);
/// All such items.
std::vector<CQrUiToolPanelItem*> allItems(const WindowSystem& windows);
/// The tool panel that an item, or the outermost flyout around it, stands on; null for none.
CQrUiToolPanel* toolPanelOf(const CQrUiToolPanelItem& item);

/// The name that a user knows an item by: its own, or else its label in the menu data; empty for none.
std::wstring shownName(const Toolkit& toolkit, const CQrUiToolPanelItem& item);

/// What a user sees of an item.
struct ItemView {
    std::wstring id;
    bool checked = false;
    bool disabled = false;
    bool hidden = false;
    std::wstring name;  ///< Its own; empty if it has none.
    std::string image;  ///< Resource key or file name of the small picture; empty for none.
    std::wstring tool;  ///< ID of a flyout's current tool; empty for none.
};
ItemView viewOf(const Toolkit& toolkit, const CQrUiToolPanelItem& item);

}  // namespace workbench
