#include "workbench/menu/menu_host.h"

#include "workbench/base/text.h"
#include "workbench/menu/menu_reader.h"

#include <utility>

namespace workbench {

MenuHost::Menu::Menu(MenuData data)
    : catalog(std::move(data)),
      records(catalog),
      workspaces(catalog.data()) {}

MenuHost::MenuHost(std::filesystem::path menuFile, LibraryTable& libraries)
    : m_file(std::move(menuFile)),
      m_libraries(libraries) {
    reload();
}

MenuHost::~MenuHost() {
    freeResourceModules();
}

void MenuHost::reload() {
    m_menu = std::make_unique<Menu>(m_file.empty() ? MenuData() : readMenuFile(m_file));
    freeResourceModules();
}

bool MenuHost::switchWorkspace(std::string_view name) {
    const bool known = m_menu->workspaces.switchTo(name);
    if (known && m_onWorkspace)
        m_onWorkspace();
    return known;
}

std::wstring MenuHost::labelOf(const VxToolPanelItemData* record) const {
    const MenuItem* const item = m_menu->records.itemOf(record);
    return item == nullptr ? std::wstring() : toWide(item->name);
}

HINSTANCE MenuHost::resourceModule(std::string_view menuGroup) {
    const MenuGroup* const group = m_menu->catalog.findMenuGroup(menuGroup);
    if (group == nullptr || group->resourceModule.empty())
        return nullptr;
    const std::string& file = group->resourceModule;
    if (m_resourceModules.contains(file))
        return m_libraries.find(toWide(file));
    const HINSTANCE library = m_libraries.load(toWide(file));
    if (library != nullptr)
        m_resourceModules.emplace(file, library);
    return library;
}

void MenuHost::freeResourceModules() {
    for (const auto& [file, library] : m_resourceModules)
        m_libraries.free(library);
    m_resourceModules.clear();
}

}  // namespace workbench
