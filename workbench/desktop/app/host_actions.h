#pragma once

#include <string>
#include <vector>

namespace workbench {
class Workbench;
}

namespace workbench::desktop {

/// Makes a workspace current and hands its panels to the dashboard, as the host does. Throws
/// `InputError` for an unknown name.
void switchWorkspace(Workbench& workbench, const std::string& name);
/// Shows the panels of the current workspace, as at a host's first start; later the profile tells
/// which panels are on show.
void showPanelsOfWorkspace(Workbench& workbench);
/// The names of all workspaces.
std::vector<std::string> workspaceNames(Workbench& workbench);
/// The names of the profiles that there are files of, and the current one, in order.
std::vector<std::string> profileNames(Workbench& workbench);
/// Reads the menu file again and builds the panels anew. Throws `InputError`, with the old panels
/// still there.
void reloadMenu(Workbench& workbench);
/// Shows the dashboard if it is hidden, docked at its edge with all panels rolled down.
void resetLayout(Workbench& workbench);

/// Shows the dashboard, or hides it if it is on show.
void toggleDashboard(Workbench& workbench);
/// Shows tools 16 or 32 pixels large.
void setIconSize(Workbench& workbench, int pixels);

}  // namespace workbench::desktop
