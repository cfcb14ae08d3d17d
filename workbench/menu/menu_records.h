#pragma once

#include "workbench/menu/menu_catalog.h"

#include <hostapi/zorq/menu_data.h>

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace workbench {

/// The menu data in the form that modules get. Addresses are good as long as the records; what the
/// dashboard writes into them stays with them.
class MenuRecords {
public:
    /// The catalog must outlive the records.
    explicit MenuRecords(const MenuCatalog& catalog);
    MenuRecords(const MenuRecords&) = delete;
    MenuRecords& operator=(const MenuRecords&) = delete;

    /// All panels; null if the menu has none.
    const VxPanelSetData* panels() const { return m_panelSet.empty() ? nullptr : &m_panelSet; }
    /// The items of a tool panel; null for none.
    const VxToolPanelData* toolPanel(std::string_view menuGroup, std::string_view id) const;
    /// The menu's item that a record was made from; null for a foreign record.
    const MenuItem* itemOf(const VxToolPanelItemData* record) const;

private:
    VxPanelData* addPanel(const MenuPanel& panel);
    VxToolPanelItemData* addItem(const MenuItem& item);

    const MenuCatalog& m_catalog;
    std::deque<VxPanelData> m_panels;
    std::deque<VxToolPanelItemData> m_items;
    VxPanelSetData m_panelSet;
    std::unordered_map<const MenuToolPanel*, VxToolPanelData> m_toolPanels;
    std::unordered_map<const VxToolPanelItemData*, const MenuItem*> m_origins;
};

}  // namespace workbench
