#include "controls/slider_edit_panel_ctrl.h"

#include "controls/edit_messages.h"
#include "controls/row_items.h"
#include "core/message_table.h"

#include <hostapi/qrui18/tool_panel_item.h>

namespace {

/// Child, visible, border, tab stop, automatic horizontal scroll.
constexpr DWORD kEditStyle = 0x50810080;
constexpr CRect kEditRect{0, 0, 16, 16};
constexpr UINT kKeepPlaceFlags = SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE;

/// What the items before the edit field take of the row.
struct RowSum {
    int width = 0;
    int separator = 0;  // width of the separator, 0 without one
};

/// Adds up all items but the last and moves the separators to `separatorX`.
RowSum placeEarlierItems(const CQrUiToolPanel& panel, int separatorX) {
    RowSum sum;
    const int count = panel.GetToolPanelItemCount();
    for (int i = 0; i < count - 1; ++i) {
        CQrUiToolPanelItem* item = panel.GetToolPanelItem(i);
        if (item == nullptr)
            continue;
        CRect rect;
        item->GetRect(rect, kItemClientRect);
        if (item->GetType() == kItemSeparator) {
            item->SetPosition({separatorX, item->GetPosition().y});
            sum.separator = rect.Width();
            sum.width += sum.separator;
        } else if (item->GetType() == kItemControl) {
            const CWnd* child = CWnd::FromHandle(item->GetControl());
            if (child != nullptr)
                sum.width += child->GetWindowRect().Width();
        } else {
            sum.width += rect.Width();
        }
    }
    return sum;
}

}  // namespace

constexpr MessageEntry CVxDaSliderEditPanelCtrl::kMessages[] = {
    {WM_DA_EDIT_ENTER, to<&CVxDaSliderEditPanelCtrl::onEditEnter>},
    {WM_DA_EDIT_ESCAPE, to<&CVxDaSliderEditPanelCtrl::onEditEscape>},
};
const MessageMap CVxDaSliderEditPanelCtrl::kMessageMap =
    makeMessageMap(&CVxDaSliderPanelCtrl::GetThisMessageMap, kMessages);

CVxDaSliderEditPanelCtrl::CVxDaSliderEditPanelCtrl(CVxDaControlMgr* controlMgr)
    : m_pControlMgr(controlMgr) {}

const MessageMap& CVxDaSliderEditPanelCtrl::GetThisMessageMap() {
    return kMessageMap;
}

const MessageMap& CVxDaSliderEditPanelCtrl::GetMessageMap() const {
    return kMessageMap;
}

CQrUiInputEditCtrl* CVxDaSliderEditPanelCtrl::findField(UINT editId) {
    return editId == kFirstEditId ? &m_edit : nullptr;
}

void CVxDaSliderEditPanelCtrl::fieldEntered(CQrUiInputEditCtrl& /*field*/) {}

void CVxDaSliderEditPanelCtrl::fieldLeft(CQrUiInputEditCtrl& field) {
    commitEdit(field);
}

BOOL CVxDaSliderEditPanelCtrl::OnCommand(WPARAM wParam, LPARAM lParam) {
    const ControlNotice notice = ControlNotice::from(wParam, lParam);
    if (CQrUiInputEditCtrl* field = findField(notice.controlId)) {
        if (notice.code == EN_SETFOCUS)
            fieldEntered(*field);
        else if (notice.code == EN_KILLFOCUS)
            fieldLeft(*field);
    }
    return CVxDaSliderPanelCtrl::OnCommand(wParam, lParam);
}

LRESULT CVxDaSliderEditPanelCtrl::onEditEnter(WPARAM editId, LPARAM edit) {
    if (CQrUiInputEditCtrl* field = findField(EditKey::from(editId, edit).editId))
        commitEdit(*field);
    return 0;
}

LRESULT CVxDaSliderEditPanelCtrl::onEditEscape(WPARAM editId, LPARAM edit) {
    if (CQrUiInputEditCtrl* field = findField(EditKey::from(editId, edit).editId))
        restoreEdit(*field);
    return 0;
}

BOOL CVxDaSliderEditPanelCtrl::PreTranslateMessage(MSG* msg) {
    const ModuleCall call;
    if (sendEditKey(*msg, m_edit))
        return 1;
    return CVxDaSliderPanelCtrl::PreTranslateMessage(msg);
}

bool CVxDaSliderEditPanelCtrl::sendEditKey(const MSG& msg, CQrUiInputEditCtrl& edit) {
    if (msg.message != WM_KEYDOWN)
        return false;
    if (msg.wParam != VK_RETURN && msg.wParam != VK_ESCAPE)
        return false;
    const CWnd* focus = CWnd::GetFocus();
    if (focus == nullptr || focus != &edit)
        return false;
    const UINT message = msg.wParam == VK_RETURN ? WM_DA_EDIT_ENTER : WM_DA_EDIT_ESCAPE;
    SendMessage(message, LOWORD(static_cast<WPARAM>(edit.GetDlgCtrlID())),
                reinterpret_cast<LPARAM>(edit.m_hWnd));
    return true;
}

BOOL CVxDaSliderEditPanelCtrl::UpdateLayout(BOOL invalidate) {
    CVxDaSliderPanelCtrl::UpdateLayout(0);
    if (m_slider.m_hWnd == nullptr || m_edit.m_hWnd == nullptr)
        return 1;

    const CRect slider = m_slider.GetWindowRect();
    const CRect edit = m_edit.GetWindowRect();
    const int sliderWidth = (2 * (slider.Width() + edit.Width())) / 3;
    m_slider.SetWindowPos(0, 0, sliderWidth, slider.Height(), kKeepPlaceFlags);

    const int separatorX = ScreenToClient({slider.left, slider.top}).x + sliderWidth;
    const RowSum sum = placeEarlierItems(*this, separatorX);
    const int top = ScreenToClient({edit.left, edit.top}).y;
    m_edit.SetWindowPos(separatorX + sum.separator, top, GetWindowRect().Width() - sum.width,
                        edit.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    if (invalidate)
        Invalidate();
    return 1;
}

BOOL CVxDaSliderEditPanelCtrl::CreateEditPart() {
    addSeparatorItem(this);
    if (!createEdit(m_edit, kFirstEditId))
        return 0;
    addControlItem(this, m_edit.m_hWnd);
    return 1;
}

BOOL CVxDaSliderEditPanelCtrl::createEdit(CQrUiInputEditCtrl& edit, UINT id) {
    return edit.Create(kEditStyle, kEditRect, this, id, 0);
}
