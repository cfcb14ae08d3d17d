#include "workbench/core/host_call.h"
#include "workbench/supply/qrui_window.h"
#include "workbench/toolkit/combo_widget.h"

#include <hostapi/qrui18/combo.h>

using workbench::ComboWidget;
using workbench::HostCall;
using workbench::supply::windows;

namespace {

ComboWidget* widgetOf(const CWnd& combo) {
    return windows().widgetOf<ComboWidget>(&combo);
}

}  // namespace

BOOL CQrUiComboCtrl::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    HostCall call("CQrUiComboCtrl::Create", {style, rect.Width(), rect.Height(), parent, id});
    if (call.failed())
        return call.returns(0);
    using namespace workbench::supply;
    // The height that is asked for is the list's.
    const CRect field{rect.left, rect.top, rect.right, rect.top + ComboWidget::kHeight};
    auto creation = creationOf("CQrUiComboCtrl", style, field, parent, id);
    const bool made =
        createChild(*this, std::move(creation), std::make_unique<ComboWidget>(toolkit()));
    return call.returns(made ? 1 : 0);
}

int CQrUiComboCtrl::AddItem(QRUI_COMBO_CTRL_ITEM* item) {
    std::unique_ptr<QRUI_COMBO_CTRL_ITEM> entry(item);
    ComboWidget* const combo = widgetOf(*this);
    if (combo == nullptr || entry == nullptr)
        return -1;
    return combo->add(*windows().find(m_hWnd), std::move(entry));
}

int CQrUiComboCtrl::GetCount() const {
    const ComboWidget* const combo = widgetOf(*this);
    return combo == nullptr ? 0 : combo->count();
}

QRUI_COMBO_CTRL_ITEM* CQrUiComboCtrl::GetItem(int index) const {
    const ComboWidget* const combo = widgetOf(*this);
    return combo == nullptr ? nullptr : combo->entry(index);
}

int CQrUiComboCtrl::DeleteItem(int index) {
    HostCall call("CQrUiComboCtrl::DeleteItem", {index});
    ComboWidget* const combo = widgetOf(*this);
    if (call.failed() || combo == nullptr || !combo->remove(*windows().find(m_hWnd), index))
        return call.returns(-1);
    return call.returns(combo->count());
}

void CQrUiComboCtrl::ResetContent() {
    HostCall call("CQrUiComboCtrl::ResetContent");
    if (ComboWidget* const combo = widgetOf(*this); combo != nullptr && !call.failed())
        combo->clear(*windows().find(m_hWnd));
}

int CQrUiComboCtrl::GetCurSel() const {
    const ComboWidget* const combo = widgetOf(*this);
    return combo == nullptr ? -1 : combo->selected();
}

void CQrUiComboCtrl::SetCurSel(int index) {
    HostCall call("CQrUiComboCtrl::SetCurSel", {index});
    if (ComboWidget* const combo = widgetOf(*this); combo != nullptr && !call.failed())
        combo->select(*windows().find(m_hWnd), index);
}

void CQrUiComboCtrl::SetToolTipText(const VxString& text) {
    if (ComboWidget* const combo = widgetOf(*this))
        combo->setTip(text);
}
