#include "workbench/core/host_call.h"
#include "workbench/supply/qrui_window.h"
#include "workbench/toolkit/control_widget.h"

#include <hostapi/qrui18/tool_tip.h>

using workbench::ControlWidget;
using workbench::HostCall;
using workbench::supply::windows;

BOOL CQrToolTipCtrl::Create(CWnd* parent) {
    HostCall call("CQrToolTipCtrl::Create", {static_cast<const void*>(parent)});
    if (call.failed())
        return call.returns(0);
    using namespace workbench::supply;
    // Never on show itself: the toolkit's tooltips show the texts of the windows that they are over.
    auto creation = creationOf("CQrToolTipCtrl", WS_CHILD, {}, parent, 0);
    const bool made =
        createChild(*this, std::move(creation), std::make_unique<workbench::Widget>());
    return call.returns(made ? 1 : 0);
}

void CQrToolTipCtrl::AddTool(CWnd* tool, const VxString& text) {
    HostCall call("CQrToolTipCtrl::AddTool", {text});
    auto* const widget = windows().widgetOf<ControlWidget>(tool);
    if (!call.failed() && m_hWnd != nullptr && widget != nullptr)
        widget->setTip(text);
}
