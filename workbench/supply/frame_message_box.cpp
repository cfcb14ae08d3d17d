#include "workbench/core/host_call.h"
#include "workbench/core/invalid_argument.h"
#include "workbench/host/workbench.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/window/module.h>

int AfxMessageBox(const VxString& text, UINT type) {
    workbench::HostCall call("AfxMessageBox", {text, type});
    workbench::Workbench& workbench = workbench::Workbench::current();
    if (call.failed())
        return call.returns(call.status(0));
    // A box outside the palette sets belongs to the main frame, which bears no name.
    const HWND focus = workbench.windows().focus();
    const std::string owner = workbench::paletteSetAbove(workbench.windows(), focus) == nullptr
                                  ? std::string()
                                  : workbench.windows().ownerName(focus);
    return call.returns(workbench.toolkit().boxes().show(text, type, owner));
}

void AfxThrowInvalidArgException() {
    const workbench::HostCall call("AfxThrowInvalidArgException");
    throw workbench::InvalidArgument();
}
