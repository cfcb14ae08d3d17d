#include "controls/toolbar_group_ctrl.h"

#include "controls/edit_messages.h"
#include "controls/row_items.h"
#include "controls/toolbar_controls.h"
#include "core/message_table.h"
#include "core/message_values.h"
#include "core/resources.h"
#include "core/text.h"

#include <hostapi/qrui18/messages.h>
#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/qrui18/toolbar_control.h>

#include <memory>

namespace {

const ToolbarControlRow* findToolbarControl(const VxString& name) {
    for (const ToolbarControlRow& row : kToolbarControls) {
        if (equalNoCase(row.name, name))
            return &row;
    }
    return nullptr;
}

/// Room for the control's list beyond the row.
constexpr int kExtraWidth = 20;
constexpr int kExtraHeight = 300;
/// Success, with a control of the host's and without: only -1 fails a creation.
constexpr LRESULT kCreated = 1;

}  // namespace

constexpr MessageEntry CVxDaToolbarGroupCtrl::kMessages[] = {
    {WM_CREATE, to<&CVxDaToolbarGroupCtrl::onCreate>},
    {WM_QRUI_KEEP_FOCUS, to<&CVxDaToolbarGroupCtrl::onKeepFocus>},
    {WM_QRUI_HAS_ICON, to<&CVxDaToolbarGroupCtrl::onHasIcon>},
    {WM_QRUI_LIST_DROPPED, to<&CVxDaToolbarGroupCtrl::onKeepFocus>},
};
const MessageMap CVxDaToolbarGroupCtrl::kMessageMap =
    makeMessageMap(&CVxDaPanelGroupCtrl::GetThisMessageMap, kMessages);

const MessageMap& CVxDaToolbarGroupCtrl::GetMessageMap() const {
    return kMessageMap;
}

LRESULT CVxDaToolbarGroupCtrl::onCreate(WPARAM /*unused*/, LPARAM create) {
    const CREATESTRUCT* creation = creationFrom(create);
    if (OnCreate(creation) == -1)
        return -1;
    if (m_name.empty())
        return -1;
    const CRect rect{0, 0, creation->cx + kExtraWidth, creation->cy + kExtraHeight};
    const ToolbarControlRow* row = findToolbarControl(m_name);
    if (row != nullptr)
        m_pControl = getVxToolbarControl(this, rect, row->hostId);
    if (m_pControl == nullptr)
        return kCreated;
    if (row->iconKey != nullptr)
        addIcon(row->name, row->iconKey);
    addControlItem(this, m_pControl->m_hWnd);
    return kCreated;
}

void CVxDaToolbarGroupCtrl::addIcon(const wchar_t* id, const wchar_t* imageKey) {
    auto item = std::make_unique<CQrUiToolPanelItem>(this);
    item->SetType(kItemIcon);
    item->SetID(id);
    if (HBITMAP picture = loadDashboardPicture(imageKey, kSmallPixels))
        item->SetImage(kItemSmallImage, picture);
    AddToolPanelItem(item.release());
    m_bHasIcon = true;
}

LRESULT CVxDaToolbarGroupCtrl::onKeepFocus(WPARAM /*unused*/, LPARAM /*unusedToo*/) {
    return m_bDroppedDown ? 1 : 0;
}

LRESULT CVxDaToolbarGroupCtrl::onHasIcon(WPARAM /*unused*/, LPARAM /*unusedToo*/) {
    return m_bHasIcon ? 1 : 0;
}

LRESULT CVxDaToolbarGroupCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const ModuleCall call;
    const bool ofControl =
        message == WM_COMMAND && LOWORD(static_cast<std::uintptr_t>(lParam)) != 0;
    if (ofControl && handleControlCommand(wParam, lParam))
        return 0;
    return CVxDaPanelGroupCtrl::WindowProc(message, wParam, lParam);
}

/// Whether the command is finished with.
bool CVxDaToolbarGroupCtrl::handleControlCommand(WPARAM wParam, LPARAM lParam) {
    const ControlNotice notice = ControlNotice::from(wParam, lParam);
    do {
        if (notice.code == CBN_DROPDOWN)
            m_bDroppedDown = true;
        else if (notice.code == CBN_CLOSEUP)
            m_bDroppedDown = false;
        // Kept as it is: asked until the host takes it, without a bound, because a host that is busy
        // with the list loses the notification otherwise.
    } while (HandleToolbarComboMessage(notice.controlId, notice.code, wParam, lParam) == 0);
    return notice.code == CBN_DROPDOWN || notice.code == CBN_CLOSEUP;
}
