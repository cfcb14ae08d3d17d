#include "workbench/menu/customization_dialog.h"

#include "workbench/base/text.h"
#include "workbench/core/host_call.h"

namespace workbench {

void CustomizationDialog::selectPanel(const VxString& menuGroup, const VxString& panelId) {
    const HostCall call("VxCustomizationInterface::selectPanel", {menuGroup, panelId});
    if (!call.failed())
        m_selection = PanelKey{toUtf8(panelId), toUtf8(menuGroup)};
}

}  // namespace workbench
