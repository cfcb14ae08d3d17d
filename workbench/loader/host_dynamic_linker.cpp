#include "workbench/loader/host_dynamic_linker.h"

#include "workbench/core/host_call.h"
#include "workbench/loader/module_loader.h"

namespace workbench {

HostDynamicLinker::HostDynamicLinker(ModuleLoader& loader)
    : RegisteredObject(L"VxRxDynamicLinker"),
      m_loader(loader) {}

bool HostDynamicLinker::unlockApplication(void* appPacket) {
    HostCall call("VxRxDynamicLinker::unlockApplication", {appPacket});
    HostModule* const module = m_loader.findByPacket(appPacket);
    if (call.failed() || module == nullptr)
        return call.returns(false);
    module->unlock();
    return call.returns(true);
}

bool HostDynamicLinker::registerAppMDIAware(void* appPacket) {
    HostCall call("VxRxDynamicLinker::registerAppMDIAware", {appPacket});
    HostModule* const module = m_loader.findByPacket(appPacket);
    if (call.failed() || module == nullptr)
        return call.returns(false);
    module->setMdiAware();
    return call.returns(true);
}

bool HostDynamicLinker::loadModule(const wchar_t* fileName, int print, int asCommand) {
    HostCall call("VxRxDynamicLinker::loadModule", {fileName, print, asCommand});
    if (call.failed() || fileName == nullptr)
        return call.returns(false);
    return call.returns(m_loader.loadModule(fileName));
}

void* HostDynamicLinker::getSymbolAddress(const wchar_t* service, const char* symbol) const {
    HostCall call("VxRxDynamicLinker::getSymbolAddress", {service, symbol});
    if (call.failed() || service == nullptr || symbol == nullptr)
        return call.returns<void*>(nullptr);
    const ServiceEntry* const entry = m_loader.registry().findService(service);
    if (entry == nullptr)
        return call.returns<void*>(nullptr);
    return call.returns(m_loader.libraries().symbol(entry->module(), symbol));
}

}  // namespace workbench
