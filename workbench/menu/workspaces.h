#pragma once

#include "workbench/menu/menu_data.h"

#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// The host's workspaces while it runs: which is current, and whether the panels are asked to
/// follow it.
class Workspaces {
public:
    /// Starts in the menu's current workspace, with no refresh asked for.
    explicit Workspaces(const MenuData& menu);

    /// The current workspace's name; empty if the menu has no workspaces.
    const std::string& current() const { return m_current; }

    /// All of the menu's.
    const std::vector<Workspace>& all() const { return m_workspaces; }

    /// Makes a workspace current and asks the panels to follow, also if it was current before.
    /// False, and nothing is changed, if there is none of this name (exact comparison).
    bool switchTo(std::string_view name);

    /// The current workspace's panels in the order on screen; null if the menu has no workspaces.
    const std::vector<PanelKey>* visiblePanels() const;

    /// Whether the panels are to follow the workspace at their next refresh.
    bool panelRefreshFromWorkspace() const { return m_panelRefresh; }
    void setPanelRefreshFromWorkspace(bool refresh) { m_panelRefresh = refresh; }

private:
    const Workspace* find(std::string_view name) const;

    std::vector<Workspace> m_workspaces;
    std::string m_current;  // empty: none
    bool m_panelRefresh = false;
};

}  // namespace workbench
