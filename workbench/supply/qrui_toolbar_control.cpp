#include "workbench/core/host_call.h"
#include "workbench/host/workbench.h"
#include "workbench/toolbar/toolbar_controls.h"

#include <hostapi/qrui18/toolbar_control.h>

CWnd* getVxToolbarControl(CWnd* parent, const CRect& rect, UINT id) {
    workbench::HostCall call("getVxToolbarControl", {static_cast<const void*>(parent), rect.left,
                                                     rect.top, rect.right, rect.bottom, id});
    CWnd* control = call.failed()
                        ? nullptr
                        : workbench::Workbench::current().toolbarControls().make(parent, rect, id);
    return call.returns(control);
}

int HandleToolbarComboMessage(UINT id, UINT notification, WPARAM wParam, LPARAM lParam) {
    workbench::HostCall call("HandleToolbarComboMessage", {id, notification, wParam});
    if (call.failed()) {
        // Whoever asks goes on until it is taken: a refusal without a count would be one for ever.
        workbench::Workbench::current().faults().endLasting("HandleToolbarComboMessage");
        return call.returns(call.status(0));
    }
    // A command of no control of the host is taken too: nobody else waits for it.
    workbench::Workbench::current().toolbarControls().handle(reinterpret_cast<HWND>(lParam), id,
                                                             notification);
    return call.returns(1);
}
