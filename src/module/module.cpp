#include "module/module.h"

#include "core/constants.h"
#include "core/flag_scope.h"
#include "core/host_objects.h"
#include "core/module_call.h"
#include "core/resources.h"
#include "core/roof.h"
#include "core/text.h"
#include "core/theme.h"
#include "layer/filter_combo.h"
#include "module/commands.h"
#include "module/control_manager.h"
#include "module/manager.h"
#include "text/text_height_list.h"
#include "visualstyle/style_reactors.h"

#include <hostapi/qrui18/palette_set.h>
#include <hostapi/vxdb18.h>
#include <hostapi/vxut.h>
#include <hostapi/window/module.h>

#include <memory>
#include <utility>

namespace {

constexpr const wchar_t* kResourceLoadError =
    L"FATAL ERROR: Unable to load file '%ls'. %ls.\nPress OK to abort.";

std::unique_ptr<VxDaManager> s_manager;
std::unique_ptr<CVxDaControlMgr> s_controlManager;
bool s_unloading = false;

void announceModule(void* appPacket) {
    VxRxDynamicLinker* linker = dynamicLinker();
    if (linker == nullptr)
        return;
    linker->unlockApplication(appPacket);
    linker->registerAppMDIAware(appPacket);
}

void registerService() {
    if (!vxrxServiceIsRegistered(kServiceName))
        vxrxRegisterService(kServiceName);
}

void reportMissingResources() {
    const VxString reason = VxUt::GetSystemErrorMessage(GetLastError());
    AfxMessageBox(formatText(kResourceLoadError, kResourceLibraryFile, reason.c_str()),
                  MB_OK | MB_ICONSTOP);
}

void createManagers() {
    s_manager = std::make_unique<VxDaManager>();
    setDashboardRoof(s_manager.get());
    s_manager->attach();
    s_controlManager = std::make_unique<CVxDaControlMgr>();
    setControlRoof(s_controlManager.get());
}

void takeDashboardDown() {
    if (s_manager == nullptr || !s_manager->panelsLoaded())
        return;
    s_manager->unloadPanels();
    s_manager->deleteDashboard();
}

void deleteControlManager() {
    setControlRoof(nullptr);
    if (std::unique_ptr<CVxDaControlMgr> controls = std::move(s_controlManager)) {
        controls->leaveService();
        freeAfterCall(std::move(controls));
    }
}

void deleteManager() {
    setDashboardRoof(nullptr);
    if (std::unique_ptr<VxDaManager> manager = std::move(s_manager)) {
        manager->leaveService();
        freeAfterCall(std::move(manager));
    }
}

void deleteManagers() {
    deleteControlManager();
    endEarlierDropdowns();
    dropAllTextHeights();
    // Controls leave the registries of the style reactors as they end, so these go after them.
    deleteStyleReactors();
    deleteManager();
}

void deleteService() {
    VxRxDictionary* services = serviceDictionary();
    if (services != nullptr)
        delete services->remove(kServiceName);
}

}  // namespace

void loadModule(void* appPacket) {
    announceModule(appPacket);
    registerService();
    if (!dashboardResources().load()) {
        reportMissingResources();
        return;
    }
    dashboardResources().attach();
    registerCommands();
    dashboardThemeOwner().acquire();
    dashboardThemeOwner().buildFont();
    createManagers();
    QrUiRegisterTool(kModuleFile, kShowCommand, kDashboardToolId);
    loadIconLibrary();
}

// Kept as it is: the order differs from the reverse of the load, because strings are needed no more
// once the panels are down, and the controls still use the theme when they end.
void unloadModule() {
    // The message may come back in from what the steps call; the first one does the work.
    if (s_unloading)
        return;
    const FlagScope unloading(s_unloading);
    takeDashboardDown();
    removeCommands();
    dashboardResources().free();
    dashboardResources().detach();
    deleteManagers();
    dashboardThemeOwner().deleteFont();
    dashboardThemeOwner().release();
    deleteService();
}

VxDaManager* dashboardManager() {
    return s_manager.get();
}

CVxDaControlMgr* controlManager() {
    return s_controlManager.get();
}
