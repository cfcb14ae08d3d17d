#pragma once

#include "workbench/loader/host_class.h"
#include "workbench/loader/host_dictionary.h"
#include "workbench/loader/registered_object.h"
#include "workbench/loader/service_entry.h"

#include <hostapi/vxdb18/rx_object.h>

#include <string>
#include <string_view>

namespace workbench {

/// The system registry: the dictionary in which the host's own objects stand by name, with the
/// dictionaries of services and classes in it.
class SystemRegistry {
public:
    SystemRegistry();
    SystemRegistry(const SystemRegistry&) = delete;
    SystemRegistry& operator=(const SystemRegistry&) = delete;

    /// Enters an object of the host under a name, in place of an earlier one. The registry does not
    /// own it: whoever adds it removes it before it ends. Throws std::logic_error if the host has
    /// no class of this name or the object is of another class.
    void add(const wchar_t* name, const wchar_t* className, VxRxObject& object);
    /// Takes an object of the host out; an unknown name is ignored.
    void remove(const wchar_t* name);

    /// What modules get as the system registry.
    VxRxDictionary& dictionary() { return m_entries; }

    bool isServiceRegistered(std::wstring_view name) const;
    /// Registers a service for the module that is being loaded (null: for the host itself). A
    /// service that is registered already stays with its module.
    void registerService(std::wstring_view name, HINSTANCE module);
    /// The service of a name; null for none.
    const ServiceEntry* findService(std::wstring_view name) const;
    /// Ends the services that a module left behind.
    void dropServicesOf(HINSTANCE module);

private:
    HostDictionary m_entries;
    HostDictionary m_services;
    HostDictionary m_classes;
};

}  // namespace workbench
