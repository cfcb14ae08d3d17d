#include "workbench/base/text.h"
#include "workbench/core/host_call.h"
#include "workbench/host/workbench.h"
#include "workbench/palettes/tool_palettes.h"

#include <hostapi/vxtcui.h>

#include <optional>

using workbench::HostCall;
using workbench::ToolPalettes;
using workbench::Workbench;

CVxTcUiManager* VxTcUiGetManager() {
    HostCall call("VxTcUiGetManager");
    ToolPalettes& palettes = Workbench::current().toolPalettes();
    if (call.failed() || !palettes.isInstalled())
        return call.returns<CVxTcUiManager*>(nullptr);
    return call.returns<CVxTcUiManager*>(&palettes);
}

BOOL VxTcUiGetToolPaletteGroups(const wchar_t* scheme, CStringArray& groups) {
    HostCall call("VxTcUiGetToolPaletteGroups", {scheme});
    if (call.failed() || scheme == nullptr)
        return call.returns<BOOL>(0);
    const std::optional<std::vector<std::wstring>> names =
        Workbench::current().toolPalettes().groups(workbench::toUtf8(scheme));
    if (!names)
        return call.returns<BOOL>(0);
    groups.insert(groups.end(), names->begin(), names->end());
    return call.returns<BOOL>(1);
}
