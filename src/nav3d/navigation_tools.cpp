#include "nav3d/navigation_tools.h"

#include "controls/cmd_util.h"
#include "core/constants.h"
#include "core/host_objects.h"
#include "core/resources.h"
#include "core/string_ids.h"
#include "core/text.h"
#include "nav3d/navigation_module.h"

#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/vxdb18/dynamic_linker.h>
#include <hostapi/window/messages.h>
#include <hostapi/window/module.h>
#include <hostapi/zorq.h>

namespace {

struct NavigationModeRow {
    const wchar_t* itemId;
    int mode;  // the navigation module's number
};
constexpr NavigationModeRow kNavigationModes[] = {
    {L"MM_1572", 2},
    {L"MM_1573", 3},
    {L"ID_Constrained_Orbit", 4},
    {L"ID_Free_Orbit", 22},
    {L"ID_3dcorbit", 5},
    {L"ID_3DWalk", 17},
    {L"ID_3DFLY", 18},
    {L"ID_3ddistanc", 10},
    {L"ID_3dswivel", 9},
    {L"ID_Parallel_Projection", 4315},
    {L"ID_Perspective_Projection", 4316},
};

struct NavigationFunctionRow {
    const wchar_t* itemId;
    const char* symbol;
};
constexpr NavigationFunctionRow kNavigationFunctions[] = {
    {L"ID_Animation_Play", "navPlayAnimation"},
    {L"ID_Animation_Record", "navRecordAnimation"},
    {L"ID_Animation_Pause", "navPauseRecording"},
    {L"ID_Animation_Save", "navSaveAnimation"},
    {L"ID_Animation_Settings", "navShowAnimationSetting"},
};

template <class Row, std::size_t Count>
const Row* findRow(const Row (&rows)[Count], const VxString& itemId) {
    for (const Row& row : rows) {
        if (equalNoCase(row.itemId, itemId))
            return &row;
    }
    return nullptr;
}

template <class Function>
Function findNavigationSymbol(const char* symbol) {
    const HINSTANCE module = GetModuleHandle(kNavigationModuleFile);
    if (module == nullptr)
        return nullptr;
    return findNavigationExport<Function>(module, symbol);
}

bool isNavigationModuleLoaded() {
    if (vxrxServiceIsRegistered(kNavigationService))
        return true;
    VxRxDynamicLinker* linker = dynamicLinker();
    if (linker != nullptr && linker->loadModule(kNavigationModuleFile, 1, 0))
        return true;
    AfxMessageBox(formatText(loadDashboardString(kStrNavigationLoadFailed), kNavigationModuleFile),
                  MB_OK | MB_ICONWARNING);
    return false;
}

int callNavFunction(const char* symbol) {
    if (!isNavigationModuleLoaded())
        return 1;
    if (auto* function = findNavigationSymbol<void (*)()>(symbol))
        function();
    return 1;
}

int switchNavigationMode(CQrUiToolPanelItem* item, int mode) {
    CTool* tool = nullptr;
    if (!OrbitInProgress(tool) || tool == nullptr)
        return sendItemMacro(item);
    if (auto* function = findNavigationSymbol<void (*)(CTool*, int)>("navSwitchNavMode")) {
        function(tool, mode);
    }
    return 1;
}

int showWalkSettings(CQrUiToolPanelItem* item) {
    CTool* tool = nullptr;
    if (!OrbitInProgress(tool))
        return sendItemMacro(item);
    return callNavFunction("navShowWalkSetting");
}

}  // namespace

std::optional<int> clickNavigationTool(CQrUiToolPanelItem* item) {
    const VxString& id = item->GetID();
    if (const auto* row = findRow(kNavigationModes, id))
        return switchNavigationMode(item, row->mode);
    if (equalNoCase(id, L"ID_3DWalk_Settings"))
        return showWalkSettings(item);
    if (const auto* row = findRow(kNavigationFunctions, id))
        return callNavFunction(row->symbol);
    return {};
}
