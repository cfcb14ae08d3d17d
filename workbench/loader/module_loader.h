#pragma once

#include "workbench/loader/host_dynamic_linker.h"
#include "workbench/loader/host_module.h"
#include "workbench/loader/library_table.h"
#include "workbench/loader/module_environment.h"
#include "workbench/loader/registry.h"
#include "workbench/loader/resource_search.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// Loads and unloads the host's modules, and holds what belongs to them: the open libraries, the
/// system registry, the resources and the environment that modules see.
class ModuleLoader {
public:
    /// Modules and resource libraries are found in `folder`. The faults must outlive the loader.
    ModuleLoader(std::filesystem::path folder, const Faults& faults);
    ModuleLoader(const ModuleLoader&) = delete;
    ModuleLoader& operator=(const ModuleLoader&) = delete;
    /// Ends as `unloadAll` does.
    ~ModuleLoader();

    LibraryTable& libraries() { return m_libraries; }
    SystemRegistry& registry() { return m_registry; }
    ResourceSearch& resources() { return m_resources; }
    /// The strings that were handed out, to trace texts back to their numbers.
    const StringTrace& strings() const { return m_resources.trace(); }
    /// What modules read from their environment; restored when the workbench ends.
    ModuleEnvironment& environment() { return m_environment; }

    /// Loads a module by its file name and sends it the load message. True if it is loaded
    /// afterwards, which it also is if it was before; otherwise `failureText` tells why.
    bool loadModule(std::wstring_view fileName);
    /// Sends a module the unload message and closes its library. False, with `failureText`, if it
    /// isn't loaded, has not let itself be unloaded, is handling a message of the loader, or is
    /// unloaded but stays in the process.
    ///
    /// Inside a turn the library is closed at its end: the module may be among those that run.
    bool unloadModule(std::wstring_view fileName);
    /// Unloads all modules, the locked ones too, latest first.
    void unloadAll();

    bool isLoaded(std::wstring_view fileName) const;
    /// The module of a packet; null for any other pointer.
    HostModule* findByPacket(const void* packet) const;
    /// The library of the module whose entry point is running; null outside.
    HINSTANCE runningModule() const;

    /// Why the last load or unload failed.
    const std::string& failureText() const { return m_failureText; }

private:
    class EntryScope;
    using Modules = std::vector<std::unique_ptr<HostModule>>;

    Modules::const_iterator find(std::wstring_view fileName) const;
    int send(HostModule& module, VxRxMessage message);
    void forget(const HostModule& module);
    void close(HINSTANCE library);
    void unload(HostModule& module);
    bool fail(std::wstring_view fileName, const std::string& reason);

    ModuleEnvironment m_environment;
    LibraryTable m_libraries;
    ResourceSearch m_resources;
    SystemRegistry m_registry;
    HostDynamicLinker m_linker;
    Modules m_modules;                         // in order of loading
    std::vector<const HostModule*> m_entries;  // running entry points, innermost last; not owned
    std::string m_failureText;
    std::shared_ptr<ModuleLoader*> m_self;  // for what is put off: null inside once this ended
};

}  // namespace workbench
