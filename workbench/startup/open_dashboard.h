#pragma once

#include "workbench/host/workbench.h"

#include <string>

namespace workbench {

/// Runs what is posted and typed until nothing is left.
void letHostRun(Workbench& workbench);
/// Loads the dashboard's module. Throws `InputError` if it can't be loaded.
void loadDashboard(Workbench& workbench);
/// Loads the dashboard, opens a drawing and shows the dashboard beside it. Throws `InputError` for a
/// module that can't be loaded and a drawing that can't be taken.
void openDashboard(Workbench& workbench, const std::string& drawing);

}  // namespace workbench
