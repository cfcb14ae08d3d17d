#include "controls/ctrl_container.h"

#include "controls/edit_messages.h"

#include <hostapi/qrui18/input_edit.h>

#include <memory>

namespace {

/// Child, visible, border, tab stop, automatic horizontal scroll.
constexpr DWORD kFieldStyle = 0x50810080;
constexpr CRect kFieldRect{0, 0, 16, 16};
constexpr UINT kFieldIds[] = {kFieldXId, kFieldYId, kFieldZId};
constexpr int kMargin = 3;  // pixels

CWnd* addField(CVxDaCtrlContainer& container, UINT id) {
    auto field = std::make_unique<ModuleWindow<CQrUiInputEditCtrl>>();
    field->Create(kFieldStyle, kFieldRect, &container, id, 0);
    container.AddItem(field.get());
    return field.release();
}

void growToHeightOf(CWnd& container, const CWnd& field) {
    const int height = field.GetWindowRect().Height();
    const CRect rect = container.GetWindowRect();
    if (rect.Height() < height)
        container.SetWindowPos(0, 0, rect.Width(), height, SWP_NOMOVE | SWP_NOZORDER);
}

}  // namespace

BOOL CVxDaCtrlContainer::PreTranslateMessage(MSG* msg) {
    const ModuleCall call;
    if (msg->message == WM_KEYDOWN && (msg->wParam == VK_RETURN || msg->wParam == VK_ESCAPE)) {
        const CWnd* item = findFocusedItem();
        CWnd* parent = GetParent();
        if (item != nullptr && parent != nullptr) {
            parent->SendMessage(msg->wParam == VK_RETURN ? WM_DA_EDIT_ENTER : WM_DA_EDIT_ESCAPE,
                                LOWORD(static_cast<WPARAM>(item->GetDlgCtrlID())),
                                reinterpret_cast<LPARAM>(item->m_hWnd));
            return 1;
        }
    }
    return CQrUiCtrlContainer::PreTranslateMessage(msg);
}

CWnd* CVxDaCtrlContainer::findFocusedItem() const {
    const CWnd* focus = CWnd::GetFocus();
    if (focus == nullptr)
        return nullptr;
    for (int i = 0; i < GetItemCount(); ++i) {
        CWnd* item = GetItem(i);
        if (item != nullptr && item->m_hWnd == focus->m_hWnd)
            return item;
    }
    return nullptr;
}

BOOL CVxDaCtrlContainer::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (CWnd* parent = GetParent()) {
        const UINT code = ControlNotice::from(wParam, lParam).code;
        if (code == EN_KILLFOCUS)
            parent->SendMessage(WM_DA_EDIT_KILLFOCUS, wParam, lParam);
        else if (code == EN_SETFOCUS)
            parent->SendMessage(WM_DA_EDIT_SETFOCUS, wParam, lParam);
    }
    return CQrUiCtrlContainer::OnCommand(wParam, lParam);
}

BOOL createCoordinateFields(CVxDaCtrlContainer* container) {
    if (container == nullptr || !IsWindow(container->m_hWnd))
        return 0;
    const CWnd* last = nullptr;
    for (const UINT id : kFieldIds)
        last = addField(*container, id);
    container->SetMargin(kMargin);
    growToHeightOf(*container, *last);
    return 1;
}
