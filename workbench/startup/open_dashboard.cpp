#include "workbench/startup/open_dashboard.h"

#include "workbench/base/input_error.h"
#include "workbench/base/text.h"
#include "workbench/editor/editor.h"
#include "workbench/loader/module_loader.h"
#include "workbench/windows/window_system.h"

namespace workbench {

void letHostRun(Workbench& workbench) {
    do {
        workbench.windows().queue().runPosted();
        workbench.editor().pump();
    } while (workbench.windows().queue().hasPosted());
}

void loadDashboard(Workbench& workbench) {
    workbench.modules().environment().set("ENABLEDASHBOARD", "1");
    if (!workbench.modules().loadModule(kDashboardModule))
        throw InputError(toUtf8(kDashboardModule), workbench.modules().failureText());
}

void openDashboard(Workbench& workbench, const std::string& drawing) {
    loadDashboard(workbench);
    workbench.editor().documents().open(drawing);
    letHostRun(workbench);
    workbench.editor().type(L"DASHBOARDOLD\n");
    letHostRun(workbench);
}

}  // namespace workbench
