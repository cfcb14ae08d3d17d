#include "module/module.h"

#include "module/commands.h"
#include "core/constants.h"
#include "core/host_objects.h"
#include "module/manager.h"
#include "core/resources.h"
#include "core/text.h"
#include "core/theme.h"

#include "module/control_manager.h"
#include "visualstyle/style_reactors.h"

#include <hostapi/qrui18/palette_set.h>
#include <hostapi/vxdb18.h>
#include <hostapi/vxut.h>
#include <hostapi/window/module.h>

#include <memory>

namespace {

constexpr const wchar_t* kResourceLoadError =
    L"FATAL ERROR: Unable to load file '%ls'. %ls.\nPress OK to abort.";

std::unique_ptr<VxDaManager> s_manager;
std::unique_ptr<CVxDaControlMgr> s_controlManager;
HINSTANCE s_iconLibrary = nullptr;  // stays loaded for the life of the process

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
    s_manager->attach();
    s_controlManager = std::make_unique<CVxDaControlMgr>();
}

void loadIconLibrary() {
    const VxDbHostApplicationServices* services = vxdbHostApplicationServices();
    const VxString program = services == nullptr ? VxString() : services->program();
    s_iconLibrary = LoadLibrary((program + kIconLibrarySuffix).c_str());
}

void takeDashboardDown() {
    if (s_manager == nullptr || !s_manager->panelsLoaded())
        return;
    s_manager->unloadPanels();
    s_manager->deleteDashboard();
}

void deleteManagers() {
    s_controlManager.reset();
    // Controls leave the registries of the style reactors as they end, so these go after them.
    deleteStyleReactors();
    s_manager.reset();
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

bool isDashboardVisible() {
    return s_manager != nullptr && s_manager->isDashboardVisible();
}

CVxDaControlMgr* controlManager() {
    return s_controlManager.get();
}

HINSTANCE iconLibrary() {
    return s_iconLibrary;
}
