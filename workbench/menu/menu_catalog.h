#pragma once

#include "workbench/menu/menu_data.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace workbench {

/// Menu data with look-ups by name. Names compare exactly; what isn't there is null.
/// Pointers stay good as long as the catalog.
class MenuCatalog {
public:
    explicit MenuCatalog(MenuData data);

    MenuCatalog(const MenuCatalog&) = delete;
    MenuCatalog& operator=(const MenuCatalog&) = delete;

    const MenuData& data() const { return m_data; }

    const MenuGroup* findMenuGroup(std::string_view name) const;
    const MenuPanel* findPanel(std::string_view menuGroup, std::string_view id) const;
    const MenuToolPanel* findToolPanel(std::string_view menuGroup, std::string_view id) const;
    const ToolPaletteScheme* findToolPaletteScheme(std::string_view name) const;

private:
    using Index = std::unordered_map<std::string, std::size_t>;  // key of group and ID to position

    const MenuData m_data;
    Index m_panels;
    Index m_toolPanels;
};

}  // namespace workbench
