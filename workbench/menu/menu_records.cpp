#include "workbench/menu/menu_records.h"

#include "workbench/base/text.h"

namespace workbench {

MenuRecords::MenuRecords(const MenuCatalog& catalog) : m_catalog(catalog) {
    for (const MenuPanel& panel : catalog.data().panels)
        m_panelSet.push_back(addPanel(panel));
    for (const MenuToolPanel& toolPanel : catalog.data().toolPanels) {
        VxToolPanelData& records = m_toolPanels[&toolPanel];
        for (const MenuItem& item : toolPanel.items)
            records.push_back(addItem(item));
    }
}

const VxToolPanelData* MenuRecords::toolPanel(std::string_view menuGroup,
                                              std::string_view id) const {
    const auto found = m_toolPanels.find(m_catalog.findToolPanel(menuGroup, id));
    return found == m_toolPanels.end() ? nullptr : &found->second;
}

const MenuItem* MenuRecords::itemOf(const VxToolPanelItemData* record) const {
    const auto found = m_origins.find(record);
    return found == m_origins.end() ? nullptr : found->second;
}

VxPanelData* MenuRecords::addPanel(const MenuPanel& panel) {
    VxPanelData& record = m_panels.emplace_back();
    record.id = toWide(panel.id);
    record.title = toWide(panel.title);
    record.menuGroup = toWide(panel.menuGroup);
    record.image = toWide(panel.image);
    for (const std::string& id : panel.toolPanels)
        record.toolPanelIds.push_back(toWide(id));
    return &record;
}

VxToolPanelItemData* MenuRecords::addItem(const MenuItem& item) {
    VxToolPanelItemData& record = m_items.emplace_back();
    record.type = static_cast<int>(item.type);
    record.smallImage = toWide(item.smallImage);
    record.largeImage = toWide(item.largeImage);
    record.controlName = toWide(item.controlName);
    record.macro = toWide(item.macro);
    record.id = toWide(item.id);
    record.flyoutId = toWide(item.flyoutId);
    record.flyoutImage = item.flyoutOwnImage ? 1 : 0;
    record.module = toWide(item.module);
    m_origins.emplace(&record, &item);
    return &record;
}

}  // namespace workbench
