#pragma once

#include "workbench/loader/registered_object.h"

#include <hostapi/vxdb18/dynamic_linker.h>

namespace workbench {

class ModuleLoader;

/// The module loader as modules see it: the registry's entry "DynamicLinker".
class HostDynamicLinker final : public RegisteredObject<VxRxDynamicLinker> {
public:
    explicit HostDynamicLinker(ModuleLoader& loader);

    // VxRxDynamicLinker:
    bool unlockApplication(void* appPacket) override;
    bool registerAppMDIAware(void* appPacket) override;
    bool loadModule(const wchar_t* fileName, int print, int asCommand) override;
    void* getSymbolAddress(const wchar_t* service, const char* symbol) const override;

private:
    ModuleLoader& m_loader;
};

}  // namespace workbench
