#include "workbench/menu/menu_catalog.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace workbench {

namespace {

/// Group and ID as one key; the length keeps "A" + "BC" apart from "AB" + "C".
std::string joined(std::string_view menuGroup, std::string_view id) {
    std::string key = std::to_string(menuGroup.size()) + ':';
    key += menuGroup;
    key += id;
    return key;
}

template <typename Record>
std::unordered_map<std::string, std::size_t> indexOf(const std::vector<Record>& records) {
    std::unordered_map<std::string, std::size_t> index;
    for (std::size_t position = 0; position < records.size(); ++position)
        index.try_emplace(joined(records[position].menuGroup, records[position].id), position);
    return index;
}

template <typename Record>
const Record* findByKey(const std::vector<Record>& records,
                        const std::unordered_map<std::string, std::size_t>& index,
                        std::string_view menuGroup, std::string_view id) {
    const auto found = index.find(joined(menuGroup, id));
    return found == index.end() ? nullptr : &records[found->second];
}

template <typename Record>
const Record* findByName(const std::vector<Record>& records, std::string_view name) {
    const auto found = std::find_if(records.begin(), records.end(),
                                    [name](const Record& record) { return record.name == name; });
    return found == records.end() ? nullptr : &*found;
}

}  // namespace

MenuCatalog::MenuCatalog(MenuData data)
    : m_data(std::move(data)),
      m_panels(indexOf(m_data.panels)),
      m_toolPanels(indexOf(m_data.toolPanels)) {}

const MenuGroup* MenuCatalog::findMenuGroup(std::string_view name) const {
    return findByName(m_data.menuGroups, name);
}

const MenuPanel* MenuCatalog::findPanel(std::string_view menuGroup, std::string_view id) const {
    return findByKey(m_data.panels, m_panels, menuGroup, id);
}

const MenuToolPanel* MenuCatalog::findToolPanel(std::string_view menuGroup,
                                                std::string_view id) const {
    return findByKey(m_data.toolPanels, m_toolPanels, menuGroup, id);
}

const ToolPaletteScheme* MenuCatalog::findToolPaletteScheme(std::string_view name) const {
    return findByName(m_data.toolPaletteSchemes, name);
}

}  // namespace workbench
