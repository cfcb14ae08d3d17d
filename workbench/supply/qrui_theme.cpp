#include "workbench/core/host_call.h"
#include "workbench/supply/qrui_window.h"

#include <hostapi/qrui18/theme.h>

CQrUiThemeManager* QrUiGetThemeManager() {
    workbench::HostCall call("QrUiGetThemeManager");
    workbench::ThemeManager* const manager =
        call.failed() ? nullptr : &workbench::supply::toolkit().themes();
    call.returns(static_cast<const void*>(manager));
    return manager;
}
