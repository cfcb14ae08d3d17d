#include "workbench/core/host_call.h"
#include "workbench/supply/qrui_window.h"
#include "workbench/toolkit/edit_widget.h"

#include <hostapi/qrui18/input_edit.h>

using workbench::EditWidget;
using workbench::HostCall;

BOOL CQrUiInputEditCtrl::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id,
                                UINT toolkitStyle) {
    HostCall call("CQrUiInputEditCtrl::Create", {style, parent, id, toolkitStyle});
    if (call.failed())
        return call.returns(0);
    using namespace workbench::supply;
    auto creation = creationOf("CQrUiInputEditCtrl", style, rect, parent, id);
    const bool made =
        createChild(*this, std::move(creation), std::make_unique<EditWidget>(toolkit()));
    return call.returns(made ? 1 : 0);
}

void CQrUiInputEditCtrl::SetToolTipText(const VxString& text) {
    if (auto* const edit = workbench::supply::windows().widgetOf<EditWidget>(this))
        edit->setTip(text);
}

void CQrUiInputEditCtrl::SetBkNorm(COLORREF colour) {
    if (auto* const edit = workbench::supply::windows().widgetOf<EditWidget>(this))
        edit->setBackground(colour);
}
