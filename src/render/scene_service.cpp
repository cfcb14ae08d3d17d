#include "render/scene_service.h"

#include "core/host_objects.h"

#include <hostapi/vxdb18/dynamic_linker.h>

namespace {

constexpr const wchar_t* kServiceName = L"SceneUI_Service";
constexpr const wchar_t* kModuleFile = L"VxSceneUI.qlx";
constexpr Zorq::ErrorStatus kNoSunService = 3;

/// An entry point of the service, looked up anew each time; null if the service or it is missing.
template <class Function>
Function findEntryPoint(const char* symbol) {
    if (!vxrxServiceIsRegistered(kServiceName))
        vxrxLoadModule(kModuleFile, false, true);
    if (!vxrxServiceIsRegistered(kServiceName))
        return nullptr;
    const VxRxDynamicLinker* linker = dynamicLinker();
    if (linker == nullptr)
        return nullptr;
    return reinterpret_cast<Function>(linker->getSymbolAddress(kServiceName, symbol));
}

}  // namespace

Zorq::ErrorStatus getActiveSun(VxDbObjectId& sun, bool create) {
    using Function = Zorq::ErrorStatus (*)(VxDbObjectId*, bool);
    const auto function = findEntryPoint<Function>("getActiveSun");
    return function == nullptr ? kNoSunService : function(&sun, create);
}
