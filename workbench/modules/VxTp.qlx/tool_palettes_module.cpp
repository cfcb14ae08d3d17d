#include "workbench/base/text.h"
#include "workbench/host/workbench.h"
#include "workbench/modules/module_start.h"
#include "workbench/palettes/tool_palettes.h"

#include <hostapi/export.h>

/// The module of tool palettes: brings their window up on request.

VXDA_EXPORT int vxrxGetApiVersion() {
    return kVxRxApiVersion;
}

VXDA_EXPORT int vxrxEntryPoint(int message, void* appPacket) {
    return serviceModuleMessage(L"ZorqToolPalette", message, appPacket);
}

/// Shows or hides the tool palettes of a scheme. Returns 0 for an unknown scheme.
VXDA_EXPORT int VxTpShowScheme(const wchar_t* scheme, int show) {
    if (scheme == nullptr)
        return 0;
    workbench::ToolPalettes& palettes = workbench::Workbench::current().toolPalettes();
    return palettes.showScheme(workbench::toUtf8(scheme), show != 0) ? 1 : 0;
}
