#include "palette/item_click.h"

#include "controls/cmd_util.h"
#include "core/constants.h"
#include "core/roof.h"
#include "core/text.h"
#include "palette/foreign_module.h"

#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/vxdashboard.h>
#include <hostapi/zorq/frame_windows.h>
#include <hostapi/zorq/menu_data.h>

namespace {

void runInModule(const VxString& module, CQrUiToolPanelItem* item) {
    if (equalNoCase(module, kModuleFile)) {
        if (ControlRoof* controls = controlRoof())
            controls->handleToolClick(item);
        return;
    }
    void* symbol = findModuleExport(module, "VxDaButtonClicked");
    if (symbol != nullptr)
        reinterpret_cast<VxDaButtonClickedFn>(symbol)(item);
}

void runMacro(const VxString& macro) {
    if (CWnd* view = vxedGetZorqDwgView())
        view->SetFocus();
    sendMenuMacro(macro.c_str());
}

}  // namespace

int dispatchItemClick(CQrUiToolPanelItem* item) {
    if (item == nullptr)
        return 0;
    const int type = item->GetType();
    if (type == kItemSeparator || type == kItemRowBreak)
        return 1;
    if (type == kItemFlyout)
        item = item->GetCurrentFlyoutTool();
    if (item == nullptr)
        return 0;
    const VxToolPanelItemData* data = QrUiGetToolPanelItemData(item);
    if (data == nullptr)
        return 0;
    if (!data->module.empty()) {
        runInModule(data->module, item);
    } else if (!data->macro.empty()) {
        runMacro(data->macro);
    }
    return 1;
}
