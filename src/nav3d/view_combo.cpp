#include "nav3d/view_combo.h"

#include "controls/doc_lock.h"
#include "controls/edit_messages.h"
#include "controls/row_items.h"
#include "core/broadcast_messages.h"
#include "core/event_names.h"
#include "core/host_objects.h"
#include "core/message_table.h"
#include "core/message_values.h"
#include "core/resources.h"
#include "core/roof.h"
#include "core/theme.h"
#include "nav3d/force_update.h"
#include "nav3d/navigation_module.h"
#include "nav3d/white_background.h"

#include <hostapi/qrui18/messages.h>
#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/zorq/commands.h>
#include <hostapi/zorq/documents.h>
#include <hostapi/zorq/views.h>

#include <string_view>

namespace {

constexpr UINT kComboId = 5007;
constexpr DWORD kComboStyle = 0x50310223;
constexpr int kListHeight = 300;  // pixels
constexpr const wchar_t* kItemId = L"TPB_3DNAV_COMBO";
constexpr const wchar_t* kImage = L"RCDATA_3DNAV_COMBO";
constexpr UINT kStrItemName = 1238;
constexpr UINT kStrListTip = 1280;

constexpr std::wstring_view kVariableNames[] = {L"CVPORT", L"TILEMODE", L"DASHBOARDSTATE"};
constexpr EventNames kRebuildingVariables{kVariableNames};
constexpr std::wstring_view kCommandNames[] = {L"VIEW", L"NEWVIEW", L"-VIEW"};
constexpr EventNames kViewCommands{kCommandNames};

/// A way of sending of its own: no activation, no echo, an inactive document wrapped up.
void sendToCurrentDocument(const VxString& text) {
    if (VxApDocManager* documents = vxDocManagerPtr())
        documents->sendToCommandLine(documents->curDocument(), text.c_str(), false, true, false);
}

}  // namespace

constexpr MessageEntry CVxDa3DNavViewComboCtrl::kMessages[] = {
    {WM_CREATE, to<&CVxDa3DNavViewComboCtrl::onCreate>},
    {WM_ERASEBKGND, to<&CVxDa3DNavViewComboCtrl::onEraseBackground>},
    {WM_DA_DOC_BECAME_CURRENT, to<&CVxDa3DNavViewComboCtrl::onDocument>},
    {WM_DA_SYSVAR_CHANGED, to<&CVxDa3DNavViewComboCtrl::onSysVarChanged>},
    {WM_DA_COMMAND_ENDED, to<&CVxDa3DNavViewComboCtrl::onCommandOver>},
    {WM_DA_COMMAND_CANCELLED, to<&CVxDa3DNavViewComboCtrl::onCommandOver>},
    {WM_DA_VIEW_CHANGED, to<&CVxDa3DNavViewComboCtrl::onViewChanged>},
    {WM_QRUI_LIST_DROPPED, to<&CVxDa3DNavViewComboCtrl::onListDroppedQuery>},
};
const MessageMap CVxDa3DNavViewComboCtrl::kMessageMap =
    makeMessageMap(&CVxDaPanelGroupCtrl::GetThisMessageMap, kMessages);

CVxDa3DNavViewComboCtrl::CVxDa3DNavViewComboCtrl(CVxDaControlMgr* /*controlMgr*/) {}

const MessageMap& CVxDa3DNavViewComboCtrl::GetMessageMap() const {
    return kMessageMap;
}

LRESULT CVxDa3DNavViewComboCtrl::onCreate(WPARAM /*unused*/, LPARAM create) {
    const CREATESTRUCT* creation = creationFrom(create);
    if (OnCreate(creation) == -1)
        return -1;
    if (!createCombo(*creation))
        return -1;
    RebuildList();
    CQrUiToolPanelItem* button = addIconItem(this, kItemId, kImage);
    addControlItem(this, m_combo.m_hWnd);
    button->SetName(loadDashboardString(kStrItemName));
    button->SetState(button->GetState() | kItemDisabled);
    button->Invalidate();
    m_combo.SetToolTipText(loadDashboardString(kStrListTip));
    rebuildIfVisible();
    return 0;
}

BOOL CVxDa3DNavViewComboCtrl::createCombo(const CREATESTRUCT& creation) {
    if (!m_combo.Create(kComboStyle, {0, 0, creation.cx, kListHeight}, this, kComboId))
        return 0;
    m_combo.SetFont(dashboardFont());
    return 1;
}

// The list

void CVxDa3DNavViewComboCtrl::rebuildIfVisible() {
    if (isDashboardVisible())
        RebuildList();
}

void CVxDa3DNavViewComboCtrl::RebuildList() {
    const VxDbObjectId applied = vxInternalGetCurVPAppliedView();
    m_combo.ResetContent();
    fillList(applied.isNull());
    // Kept as it is: an applied view that the list doesn't hold leaves the first entry selected.
    m_combo.SetCurSel(0);
    if (!applied.isNull() && applied.isValid())
        selectView(applied);
    updateBackButton();
}

void CVxDa3DNavViewComboCtrl::fillList(bool withCurrent) {
    if (withCurrent) {
        m_combo.AddItem(makeViewEntry(kViewEntryCurrent).release());
        m_combo.AddItem(makeViewSeparator().release());
    }
    auto namedViews = makeNamedViewEntries();
    for (auto& entry : namedViews)
        m_combo.AddItem(entry.release());
    if (!namedViews.empty())
        m_combo.AddItem(makeViewSeparator().release());
    for (int code = 0; code < kPresetViewCount; ++code)
        m_combo.AddItem(makeViewEntry(code).release());
    m_combo.AddItem(makeViewSeparator().release());
    m_combo.AddItem(makeViewEntry(kViewEntryNew).release());
    m_combo.AddItem(makeViewEntry(kViewEntryManager).release());
}

void CVxDa3DNavViewComboCtrl::updateBackButton() {
    CQrUiToolPanelItem* button = GetToolPanelItem(VxString(kItemId));
    if (button == nullptr)
        return;
    const bool disabled = (button->GetState() & kItemDisabled) != 0;
    if (vxInternalIsCurVPZoomUndoAvailable() != disabled)
        return;
    button->SetState(button->GetState() ^ kItemDisabled);
    button->Invalidate();
}

/// The entry at an index; null for a separator and outside.
ViewComboItem* CVxDa3DNavViewComboCtrl::entryAt(int index) const {
    return dynamic_cast<ViewComboItem*>(m_combo.GetItem(index));
}

ViewComboItem* CVxDa3DNavViewComboCtrl::selectedEntry() const {
    return entryAt(m_combo.GetCurSel());
}

bool CVxDa3DNavViewComboCtrl::selectView(VxDbObjectId viewId) {
    for (int i = 0; i < m_combo.GetCount(); ++i) {
        const ViewComboItem* entry = entryAt(i);
        if (entry != nullptr && entry->code == kViewEntryNamed && entry->viewId == viewId) {
            m_combo.SetCurSel(i);
            return true;
        }
    }
    return false;
}

bool CVxDa3DNavViewComboCtrl::selectCode(int code) {
    for (int i = 0; i < m_combo.GetCount(); ++i) {
        const ViewComboItem* entry = entryAt(i);
        if (entry != nullptr && entry->code == code) {
            m_combo.SetCurSel(i);
            return true;
        }
    }
    return false;
}

// Gestures

BOOL CVxDa3DNavViewComboCtrl::OnCommand(WPARAM wParam, LPARAM lParam) {
    const BOOL handled = CVxDaPanelGroupCtrl::OnCommand(wParam, lParam);
    const ControlNotice notice = ControlNotice::from(wParam, lParam);
    if (notice.controlId != kComboId)
        return handled;
    if (notice.code == CBN_DROPDOWN)
        onListOpens();
    else if (notice.code == CBN_CLOSEUP)
        m_listDropped = false;
    else if (notice.code == CBN_SELENDOK)
        onChosen();
    return handled;
}

void CVxDa3DNavViewComboCtrl::onListOpens() {
    m_listDropped = true;
    const ViewComboItem* selected = selectedEntry();
    const int code = selected == nullptr ? kViewEntryCurrent : selected->code;
    const VxDbObjectId viewId = selected == nullptr ? VxDbObjectId{} : selected->viewId;
    RebuildList();
    // What is gone leaves the selection that the rebuild made.
    if (code != kViewEntryNamed)
        selectCode(code);
    else if (viewId.isValid())
        selectView(viewId);
}

void CVxDa3DNavViewComboCtrl::onChosen() {
    const ViewComboItem* entry = selectedEntry();
    if (entry == nullptr || entry->code == kViewEntryCurrent)
        return;
    m_viewCommandSent = true;
    CTool* tool = nullptr;
    if (OrbitInProgress(tool))
        restoreByTool(tool, *entry);
    else
        sendCommandOf(*entry);
}

void CVxDa3DNavViewComboCtrl::restoreByTool(CTool* tool, const ViewComboItem& entry) {
    if (entry.code < kPresetViewCount)
        callNavigationExport("navRestorePresetView", tool, entry.code);
    else if (entry.code == kViewEntryNamed)
        callNavigationExport("navRestoreNamedView", tool, entry.viewId);
}

void CVxDa3DNavViewComboCtrl::sendCommandOf(const ViewComboItem& entry) {
    // These two end in a change that the list has to follow.
    if (entry.code == kViewEntryNew || entry.code == kViewEntryManager)
        m_viewCommandSent = false;
    const VxString command = viewCommandOf(entry);
    if (!command.empty())
        sendToCurrentDocument(command);
}

void CVxDa3DNavViewComboCtrl::OnLButtonClicked(UINT /*flags*/, CPoint /*point*/) {
    if (!vxInternalIsCurVPZoomUndoAvailable())
        return;
    const VxAxDocLock lock(workingDatabase(), kLockForWrite);
    if (GetKeyState(VK_SHIFT) < 0)
        vxInternalZoomBack();
    else
        vxInternalZoomPrevious();
    rebuildIfVisible();
}

// What the host tells

LRESULT CVxDa3DNavViewComboCtrl::onCommandOver(WPARAM /*unused*/, LPARAM name) {
    if (m_refreshPending) {
        rebuildIfVisible();
        m_refreshPending = false;
    } else if (m_viewCommandSent) {
        m_viewCommandSent = false;  // the list shows already what the user chose
    } else if (kViewCommands.contains(eventNameFrom(name))) {
        rebuildIfVisible();
    }
    return 0;
}

LRESULT CVxDa3DNavViewComboCtrl::onViewChanged(WPARAM /*unused*/, LPARAM /*unusedToo*/) {
    if (m_viewCommandSent && !isNavUpdateForced())
        return 0;
    CTool* tool = nullptr;
    if (vxedCommandActive() && !OrbitInProgress(tool)) {
        m_refreshPending = true;
        return 0;
    }
    const ViewComboItem* selected = selectedEntry();
    if (selected == nullptr || selected->code == kViewEntryCurrent)
        return 0;
    if (!selectCode(kViewEntryCurrent))
        RebuildList();
    return 0;
}

LRESULT CVxDa3DNavViewComboCtrl::onSysVarChanged(WPARAM /*success*/, LPARAM name) {
    if (kRebuildingVariables.contains(eventNameFrom(name)))
        rebuildIfVisible();
    return 0;
}

LRESULT CVxDa3DNavViewComboCtrl::onDocument(WPARAM /*unused*/, LPARAM document) {
    if (documentFrom(document) != nullptr)
        rebuildIfVisible();
    return 0;
}

LRESULT CVxDa3DNavViewComboCtrl::onListDroppedQuery(WPARAM /*unused*/, LPARAM /*unusedToo*/) {
    return m_listDropped ? 1 : 0;
}

LRESULT CVxDa3DNavViewComboCtrl::onEraseBackground(WPARAM context, LPARAM /*unused*/) {
    fillWhite(drawingContextFrom(context));
    return 1;
}
