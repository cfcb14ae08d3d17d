#pragma once

namespace workbench {

class Toolkit;
class Workbench;

/// Joins units that stand on floors of their own: what is typed to the command line reaches the
/// editor, which takes what the mouse does between press and release for one step of undo; the
/// variable DASHBOARDSTATE follows the dashboard's bar, the list of workspaces the workspace.
void connectUnits(Workbench& workbench);
/// Ends it, before the first of the units ends.
void disconnectUnits(Toolkit& toolkit);

}  // namespace workbench
