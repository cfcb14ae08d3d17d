#include "workbench/core/host_call.h"
#include "workbench/supply/qrui_window.h"

#include <hostapi/qrui18/balloon.h>

void QrUiShowBalloonTip(CWnd* owner, CWnd* target, const VxString& text, UINT flags) {
    const workbench::HostCall call("QrUiShowBalloonTip", {owner, target, text, flags});
    if (call.failed() || owner == nullptr)
        return;
    workbench::supply::toolkit().balloons().show(
        owner->m_hWnd, target == nullptr ? nullptr : target->m_hWnd, text);
}

void QrUiHideBalloonTip(CWnd* owner) {
    const workbench::HostCall call("QrUiHideBalloonTip", {owner});
    if (!call.failed() && owner != nullptr)
        workbench::supply::toolkit().balloons().hide(owner->m_hWnd);
}
