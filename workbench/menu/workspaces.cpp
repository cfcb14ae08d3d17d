#include "workbench/menu/workspaces.h"

#include <algorithm>

namespace workbench {

Workspaces::Workspaces(const MenuData& menu)
    : m_workspaces(menu.workspaces),
      m_current(menu.currentWorkspace) {}

bool Workspaces::switchTo(std::string_view name) {
    const Workspace* workspace = find(name);
    if (!workspace)
        return false;
    m_current = workspace->name;
    m_panelRefresh = true;
    return true;
}

const std::vector<PanelKey>* Workspaces::visiblePanels() const {
    const Workspace* workspace = find(m_current);
    return workspace ? &workspace->visiblePanels : nullptr;
}

const Workspace* Workspaces::find(std::string_view name) const {
    const auto found =
        std::find_if(m_workspaces.begin(), m_workspaces.end(),
                     [name](const Workspace& workspace) { return workspace.name == name; });
    return found == m_workspaces.end() ? nullptr : &*found;
}

}  // namespace workbench
