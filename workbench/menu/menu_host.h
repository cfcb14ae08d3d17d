#pragma once

#include "workbench/loader/library_table.h"
#include "workbench/menu/customization_dialog.h"
#include "workbench/menu/menu_catalog.h"
#include "workbench/menu/menu_records.h"
#include "workbench/menu/workspaces.h"

#include <hostapi/zorq/menu_data.h>

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace workbench {

/// The host's menu while it runs: the menu file's data as modules get it, the workspaces, and the
/// resource modules of the menu groups.
class MenuHost {
public:
    /// Reads the menu file; an empty name stands for a host without menu data. Throws `InputError`.
    MenuHost(std::filesystem::path menuFile, LibraryTable& libraries);
    MenuHost(const MenuHost&) = delete;
    MenuHost& operator=(const MenuHost&) = delete;
    ~MenuHost();

    /// Reads the menu file again, which makes all records anew: no panel may be on show that was
    /// made from the old ones. Throws `InputError`; the old menu stays then.
    void reload();

    const MenuCatalog& catalog() const { return m_menu->catalog; }
    const MenuRecords& records() const { return m_menu->records; }
    Workspaces& workspaces() { return m_menu->workspaces; }
    CustomizationDialog& customization() { return m_customization; }

    /// The label of a menu item, by the record that stands on a panel; empty for a foreign record.
    std::wstring labelOf(const VxToolPanelItemData* record) const;

    /// Makes a workspace current and asks the panels to follow. False for an unknown name.
    bool switchWorkspace(std::string_view name);
    /// Is told of each switch of the workspace; empty: nobody is.
    void setOnWorkspace(std::function<void()> switched) { m_onWorkspace = std::move(switched); }

    /// The resource module of a menu group, loaded at the first question. Null if the group is
    /// unknown or names none, or while it cannot be found.
    HINSTANCE resourceModule(std::string_view menuGroup);

private:
    struct Menu {
        explicit Menu(MenuData data);

        MenuCatalog catalog;
        MenuRecords records;
        Workspaces workspaces;
    };

    void freeResourceModules();

    std::filesystem::path m_file;  // empty: no menu data
    LibraryTable& m_libraries;
    std::unique_ptr<Menu> m_menu;
    std::map<std::string, HINSTANCE, std::less<>> m_resourceModules;  // by file, counted once each
    CustomizationDialog m_customization;
    std::function<void()> m_onWorkspace;
};

}  // namespace workbench
