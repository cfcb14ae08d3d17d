#include "workbench/loader/registry.h"

#include "workbench/base/text.h"

#include <memory>
#include <stdexcept>

namespace workbench {

SystemRegistry::SystemRegistry() {
    m_entries.lend(L"ServiceDictionary", m_services);
    m_entries.lend(L"ClassDictionary", m_classes);
    for (HostClass& hostClass : hostClasses())
        m_classes.lend(hostClass.name(), hostClass);
}

void SystemRegistry::add(const wchar_t* name, const wchar_t* className, VxRxObject& object) {
    const HostClass* hostClass = findHostClass(className);
    if (hostClass == nullptr)
        throw std::logic_error("the host has no class " + toUtf8(className));
    const auto* classed = dynamic_cast<const ClassedObject*>(&object);
    if (classed == nullptr || classed->hostClass() != hostClass)
        throw std::logic_error(toUtf8(name) + " is not of class " + toUtf8(className));
    m_entries.lend(name, object);
}

void SystemRegistry::remove(const wchar_t* name) {
    m_entries.erase(name);
}

bool SystemRegistry::isServiceRegistered(std::wstring_view name) const {
    return findService(name) != nullptr;
}

void SystemRegistry::registerService(std::wstring_view name, HINSTANCE module) {
    if (!isServiceRegistered(name))
        m_services.give(name, std::make_unique<ServiceEntry>(module));
}

const ServiceEntry* SystemRegistry::findService(std::wstring_view name) const {
    return dynamic_cast<const ServiceEntry*>(m_services.find(name));
}

void SystemRegistry::dropServicesOf(HINSTANCE module) {
    m_services.eraseOwnedIf([module](const VxRxObject& object) {
        const auto* service = dynamic_cast<const ServiceEntry*>(&object);
        return service != nullptr && service->module() == module;
    });
}

}  // namespace workbench
