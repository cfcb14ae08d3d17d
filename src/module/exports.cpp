#include "module/manager.h"
#include "module/module.h"

#include "module/control_manager.h"
#include "nav3d/force_update.h"
#include "palette/dashboard.h"
#include "palette/panel_set.h"

#include <hostapi/vxdashboard.h>

namespace {

CVxDaPanelSet* currentPanelSet() {
    const VxDaManager* manager = dashboardManager();
    return manager == nullptr ? nullptr : manager->panelSet();
}

}  // namespace

VXDA_EXPORT HWND VxDaGetCustomControl(const wchar_t* name, HWND parent) {
    CVxDaControlMgr* controls = controlManager();
    if (controls == nullptr || name == nullptr)
        return nullptr;
    return controls->createControl(name, CWnd::FromHandle(parent));
}

VXDA_EXPORT int VxDaNotifyDashboard(int code) {
    VxDaManager* manager = dashboardManager();
    return manager == nullptr ? 0 : manager->notify(code);
}

VXDA_EXPORT int VxDaAddOrRemoveReactor(VxDaDashboardReactor* reactor, int add) {
    VxDaManager* manager = dashboardManager();
    return manager == nullptr ? 0 : manager->addOrRemoveReactor(reactor, add != 0);
}

VXDA_EXPORT int VxDaGetVisiblePanels(VxDaPanelList* panels) {
    panels->clear();
    const CVxDaPanelSet* panelSet = currentPanelSet();
    if (panelSet == nullptr)
        return 0;
    panelSet->getVisiblePanels(*panels);
    return 1;
}

VXDA_EXPORT int VxDaSetVisiblePanels(const VxDaPanelList* panels) {
    CVxDaPanelSet* panelSet = currentPanelSet();
    return panelSet == nullptr ? 0 : panelSet->setVisiblePanels(*panels);
}

VXDA_EXPORT const VxDaToolPanelItems* VxDaGetToolPanelItems(const wchar_t* itemId) {
    const CVxDaPanelSet* panelSet = currentPanelSet();
    if (panelSet == nullptr || itemId == nullptr)
        return nullptr;
    return panelSet->findToolPanelItems(itemId);
}

VXDA_EXPORT int VxDaInvalidateDashboard() {
    const VxDaManager* manager = dashboardManager();
    CVxDaDashboard* dashboard = manager == nullptr ? nullptr : manager->dashboard();
    if (dashboard == nullptr)
        return 0;
    dashboard->Invalidate(1);
    return 1;
}

VXDA_EXPORT void setForce3DNavUpdate(bool force) {
    setNavUpdateForced(force);
}
