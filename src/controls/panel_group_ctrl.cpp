#include "controls/panel_group_ctrl.h"

#include "core/message_table.h"

#include <hostapi/qrui18/messages.h>

constexpr MessageEntry CVxDaPanelGroupCtrl::kMessages[] = {
    {WM_QRUI_HAS_ICON, to<&CVxDaPanelGroupCtrl::onToolkitQuery>},
    {WM_QRUI_ROW_QUERY, to<&CVxDaPanelGroupCtrl::onToolkitQuery>},
};
const MessageMap CVxDaPanelGroupCtrl::kMessageMap =
    makeMessageMap(&CQrUiToolPanel::GetThisMessageMap, kMessages);

const MessageMap& CVxDaPanelGroupCtrl::GetThisMessageMap() {
    return kMessageMap;
}

const MessageMap& CVxDaPanelGroupCtrl::GetMessageMap() const {
    return kMessageMap;
}

LRESULT CVxDaPanelGroupCtrl::onToolkitQuery(WPARAM /*unused*/, LPARAM /*unusedToo*/) {
    return 1;
}
