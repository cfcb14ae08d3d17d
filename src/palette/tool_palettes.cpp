#include "palette/tool_palettes.h"

#include "core/host_objects.h"

#include <hostapi/vxdb18.h>
#include <hostapi/vxtcui.h>

namespace {

constexpr const wchar_t* kToolPaletteService = L"ZorqToolPalette";
constexpr const wchar_t* kToolPaletteModule = L"VxTp.qlx";
constexpr const char* kShowSchemeSymbol = "VxTpShowScheme";

bool isServiceUp() {
    if (vxrxServiceIsRegistered(kToolPaletteService))
        return true;
    vxrxLoadModule(kToolPaletteModule, false, true);
    return vxrxServiceIsRegistered(kToolPaletteService);
}

}  // namespace

int showToolPalettes() {
    const CVxTcUiManager* manager = VxTcUiGetManager();
    if (manager == nullptr)
        return 0;
    if (manager->IsToolPaletteWindowVisible() != 0)
        return 1;
    if (!isServiceUp())
        return 0;
    const VxRxDynamicLinker* linker = dynamicLinker();
    if (linker == nullptr)
        return 0;
    void* symbol = linker->getSymbolAddress(kToolPaletteService, kShowSchemeSymbol);
    if (symbol == nullptr)
        return 0;
    return reinterpret_cast<VxTpShowSchemeFn>(symbol)(kToolPaletteScheme, 1);
}

BOOL openToolPaletteGroup(const VxString& group) {
    showToolPalettes();
    CVxTcUiManager* manager = VxTcUiGetManager();
    if (manager == nullptr)
        return 0;
    CVxTcUiToolPaletteSet* palettes = manager->GetToolPaletteWindow();
    if (palettes == nullptr)
        return 0;
    palettes->SetActivePaletteGroup(group);
    return 1;
}
