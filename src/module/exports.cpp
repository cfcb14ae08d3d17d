#include "core/module_call.h"
#include "core/roof.h"
#include "module/control_manager.h"
#include "module/manager.h"
#include "module/module.h"
#include "nav3d/force_update.h"
#include "palette/dashboard.h"
#include "palette/panel_set.h"

#include <hostapi/vxdashboard.h>

VXDA_EXPORT HWND VxDaGetCustomControl(const wchar_t* name, HWND parent) {
    const ModuleCall call;
    CVxDaControlMgr* controls = controlManager();
    if (controls == nullptr || name == nullptr)
        return nullptr;
    return controls->createControl(name, CWnd::FromHandle(parent));
}

VXDA_EXPORT int VxDaNotifyDashboard(int code) {
    const ModuleCall call;
    VxDaManager* manager = dashboardManager();
    return manager == nullptr ? 0 : manager->notify(code);
}

VXDA_EXPORT int VxDaAddOrRemoveReactor(VxDaDashboardReactor* reactor, int add) {
    const ModuleCall call;
    VxDaManager* manager = dashboardManager();
    return manager == nullptr ? 0 : manager->addOrRemoveReactor(reactor, add != 0);
}

VXDA_EXPORT int VxDaGetVisiblePanels(VxDaPanelList* panels) {
    const ModuleCall call;
    if (panels == nullptr)
        return 0;
    panels->clear();
    const CVxDaPanelSet* panelSet = currentPanelSet();
    if (panelSet == nullptr)
        return 0;
    panelSet->getVisiblePanels(*panels);
    return 1;
}

VXDA_EXPORT int VxDaSetVisiblePanels(const VxDaPanelList* panels) {
    const ModuleCall call;
    CVxDaPanelSet* panelSet = currentPanelSet();
    return panelSet == nullptr || panels == nullptr ? 0 : panelSet->setVisiblePanels(*panels);
}

VXDA_EXPORT const VxDaToolPanelItems* VxDaGetToolPanelItems(const wchar_t* itemId) {
    const ModuleCall call;
    const CVxDaPanelSet* panelSet = currentPanelSet();
    if (panelSet == nullptr || itemId == nullptr)
        return nullptr;
    return panelSet->findToolPanelItems(itemId);
}

VXDA_EXPORT int VxDaInvalidateDashboard() {
    const ModuleCall call;
    const VxDaManager* manager = dashboardManager();
    CVxDaDashboard* dashboard = manager == nullptr ? nullptr : manager->dashboard();
    if (dashboard == nullptr)
        return 0;
    dashboard->Invalidate(1);
    return 1;
}

VXDA_EXPORT void setForce3DNavUpdate(bool force) {
    const ModuleCall call;
    setNavUpdateForced(force);
}
