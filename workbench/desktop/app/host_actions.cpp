#include "workbench/desktop/app/host_actions.h"

#include "workbench/base/input_error.h"
#include "workbench/base/text.h"
#include "workbench/desktop/app/collapsed_panels.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"
#include "workbench/loader/module_loader.h"
#include "workbench/menu/menu_host.h"
#include "workbench/menu/menu_reader.h"
#include "workbench/profiles/profile_store.h"
#include "workbench/startup/open_dashboard.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/vxdashboard.h>

#include <algorithm>

namespace workbench::desktop {

namespace {

constexpr int kReleaseControls = 0;
constexpr int kTakePanelsDown = 1;
constexpr int kBuildPanels = 2;
constexpr CRect kDockedRect{50, 50, 285, 350};

/// A function of the dashboard's; null while it isn't loaded.
template <class Function>
Function find(Workbench& workbench, const char* name) {
    LibraryTable& libraries = workbench.modules().libraries();
    const HINSTANCE module = libraries.find(kDashboardModule);
    if (module == nullptr)
        return nullptr;
    return reinterpret_cast<Function>(libraries.symbol(module, name));
}

void notify(Workbench& workbench, int code) {
    if (const auto function = find<VxDaNotifyDashboardFn>(workbench, "VxDaNotifyDashboard"))
        function(code);
}

}  // namespace

void switchWorkspace(Workbench& workbench, const std::string& name) {
    MenuHost& menu = workbench.menu();
    if (!menu.switchWorkspace(name))
        throw InputError("workspace", "there is no \"" + name + "\"");
    VxDaPanelList panels;
    for (const PanelKey& key : *menu.workspaces().visiblePanels())
        panels.emplace_back(toWide(key.panelId), toWide(key.menuGroup));
    if (const auto show = find<VxDaSetVisiblePanelsFn>(workbench, "VxDaSetVisiblePanels"))
        show(&panels);
}

void showPanelsOfWorkspace(Workbench& workbench) {
    // By value: the switch changes what is current.
    const std::string current = workbench.menu().workspaces().current();
    if (!current.empty())
        switchWorkspace(workbench, current);
}

std::vector<std::string> workspaceNames(Workbench& workbench) {
    std::vector<std::string> names;
    for (const Workspace& workspace : workbench.menu().workspaces().all())
        names.push_back(workspace.name);
    return names;
}

std::vector<std::string> profileNames(Workbench& workbench) {
    const ProfileStore& profiles = workbench.profiles();
    std::vector<std::string> names{profiles.currentName()};
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator(profiles.folder(), ignored)) {
        const std::string name = entry.path().stem().string();
        if (entry.path().extension() == ".xml" && name != profiles.currentName())
            names.push_back(name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

void reloadMenu(Workbench& workbench) {
    // What is wrong with the file shows before the panels are taken down.
    readMenuFile(workbench.options().panelFile);
    const std::vector<std::wstring> rolledUp = collapsedPanels(workbench.toolkit());
    notify(workbench, kReleaseControls);
    notify(workbench, kTakePanelsDown);
    workbench.menu().reload();
    notify(workbench, kBuildPanels);
    // Controls of the view wait for its change before they show it.
    workbench.editor().viewChanged();
    collapsePanels(workbench.toolkit(), rolledUp);
}

void resetLayout(Workbench& workbench) {
    Toolkit& toolkit = workbench.toolkit();
    collapsePanels(workbench.toolkit(), {});
    for (CQrUiPaletteSet* set : toolkit.frame().bars()) {
        BarPlace place;
        place.rect = kDockedRect;
        toolkit.frame().put(*set, place);
    }
    workbench.editor().type(L"DASHBOARDOLD\n");
}

void toggleDashboard(Workbench& workbench) {
    for (CQrUiPaletteSet* set : workbench.toolkit().frame().bars()) {
        if (workbench.windows().isOnScreen(set->m_hWnd)) {
            workbench.toolkit().frame().close(*set);
            return;
        }
    }
    workbench.editor().type(L"DASHBOARDOLD\n");
}

void setIconSize(Workbench& workbench, int pixels) {
    workbench.toolkit().setIconSize(pixels);
    for (CQrUiPanel* panel : allPanels(workbench.windows())) {
        if (const Window* const parent = workbench.windows().find(panel->m_hWnd))
            static_cast<CQrUiPanelSet*>(workbench.windows().find(parent->parent)->object)
                ->UpdateLayout();
    }
}

}  // namespace workbench::desktop
