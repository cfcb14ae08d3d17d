#include "workbench/base/text.h"
#include "workbench/core/host_call.h"
#include "workbench/host/workbench.h"
#include "workbench/menu/menu_host.h"

#include <hostapi/zorq/menu_data.h>

using workbench::HostCall;
using workbench::MenuHost;
using workbench::PanelKey;
using workbench::toUtf8;
using workbench::toWide;
using workbench::Workbench;

namespace {

MenuHost& menu() {
    return Workbench::current().menu();
}

}  // namespace

const VxPanelSetData* vxedGetPanelSetData() {
    HostCall call("vxedGetPanelSetData");
    if (call.failed())
        return call.returns<const VxPanelSetData*>(nullptr);
    return call.returns(menu().records().panels());
}

const VxToolPanelData* vxedGetToolPanelData(const VxString& menuGroup,
                                            const VxString& toolPanelId) {
    HostCall call("vxedGetToolPanelData", {menuGroup, toolPanelId});
    if (call.failed())
        return call.returns<const VxToolPanelData*>(nullptr);
    return call.returns(menu().records().toolPanel(toUtf8(menuGroup), toUtf8(toolPanelId)));
}

bool vxedGetWorkspacePanelData(std::vector<VxWsPanelData>& panels) {
    HostCall call("vxedGetWorkspacePanelData");
    const std::vector<PanelKey>* const visible = menu().workspaces().visiblePanels();
    if (call.failed() || visible == nullptr)
        return call.returns(false);
    panels.clear();
    for (const PanelKey& key : *visible)
        panels.push_back({toWide(key.panelId), toWide(key.menuGroup)});
    return call.returns(true);
}

HINSTANCE vxedGetPanelSetResourceHandle(const VxString& menuGroup) {
    HostCall call("vxedGetPanelSetResourceHandle", {menuGroup});
    if (call.failed())
        return call.returns<HINSTANCE>(nullptr);
    return call.returns(menu().resourceModule(toUtf8(menuGroup)));
}

bool vxedGetPanelRefreshFromWS() {
    HostCall call("vxedGetPanelRefreshFromWS");
    if (call.failed())
        return call.returns(false);
    return call.returns(menu().workspaces().panelRefreshFromWorkspace());
}

void vxedSetPanelRefreshFromWS(bool refresh) {
    const HostCall call("vxedSetPanelRefreshFromWS", {refresh});
    if (!call.failed())
        menu().workspaces().setPanelRefreshFromWorkspace(refresh);
}

VxCustomizationInterface* zorqiGetCustomizationInterface() {
    HostCall call("zorqiGetCustomizationInterface");
    if (call.failed())
        return call.returns<VxCustomizationInterface*>(nullptr);
    return call.returns<VxCustomizationInterface*>(&menu().customization());
}
