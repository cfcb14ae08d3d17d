#pragma once

#include <hostapi/vxdb18/dynamic_linker.h>

/// What a module that offers one service does with its messages, whatever the service does.

/// The loader of modules as the system registry has it; null if the registry has none.
inline VxRxDynamicLinker* moduleLinker() {
    VxRxDictionary* const registry = vxrxSysRegistry();
    if (registry == nullptr)
        return nullptr;
    return dynamic_cast<VxRxDynamicLinker*>(registry->at(L"DynamicLinker"));
}

/// Lets the module be unloaded and registers its service.
inline void startServiceModule(const wchar_t* service, void* appPacket) {
    if (VxRxDynamicLinker* const linker = moduleLinker()) {
        linker->unlockApplication(appPacket);
        linker->registerAppMDIAware(appPacket);
    }
    vxrxRegisterService(service);
}

/// Takes the module's service out of the registry again.
inline void stopServiceModule(const wchar_t* service) {
    VxRxDictionary* const registry = vxrxSysRegistry();
    if (registry == nullptr)
        return;
    // What a dictionary gives up belongs to whoever took it.
    if (auto* const services = dynamic_cast<VxRxDictionary*>(registry->at(L"ServiceDictionary")))
        delete services->remove(service);
}

/// The entry point of a module with one service: handles its message and answers 0.
inline int serviceModuleMessage(const wchar_t* service, int message, void* appPacket) {
    if (message == static_cast<int>(VxRxMessage::kInitApp))
        startServiceModule(service, appPacket);
    else if (message == static_cast<int>(VxRxMessage::kUnloadApp))
        stopServiceModule(service);
    return 0;
}
