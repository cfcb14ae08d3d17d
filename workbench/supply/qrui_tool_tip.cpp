#include "workbench/core/host_call.h"
#include "workbench/supply/qrui_window.h"
#include "workbench/toolkit/tool_tip_widget.h"

#include <hostapi/qrui18/tool_tip.h>

using workbench::HostCall;
using workbench::ToolTipWidget;
using workbench::supply::windows;

BOOL CQrToolTipCtrl::Create(CWnd* parent) {
    HostCall call("CQrToolTipCtrl::Create", {static_cast<const void*>(parent)});
    if (call.failed())
        return call.returns(0);
    using namespace workbench::supply;
    // Never on show itself: the toolkit's tooltips show the texts of the windows that they are over.
    auto creation = creationOf("CQrToolTipCtrl", WS_CHILD, {}, parent, 0);
    const bool made = createChild(*this, std::move(creation),
                                  std::make_unique<ToolTipWidget>(windows(), toolkit().toolTips()));
    return call.returns(made ? 1 : 0);
}

void CQrToolTipCtrl::AddTool(CWnd* tool, const VxString& text) {
    HostCall call("CQrToolTipCtrl::AddTool", {text});
    auto* const tip = windows().widgetOf<ToolTipWidget>(this);
    if (!call.failed() && tip != nullptr)
        tip->addTool(tool, text);
}
