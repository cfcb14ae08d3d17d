#include "workbench/loader/module_loader.h"

#include "workbench/base/text.h"
#include "workbench/base/turn.h"

#include <algorithm>
#include <utility>

namespace workbench {

/// Marks a module as the one whose entry point runs.
class ModuleLoader::EntryScope {
public:
    EntryScope(ModuleLoader& loader, const HostModule& module) : m_loader(loader) {
        m_loader.m_entries.push_back(&module);
    }
    ~EntryScope() { m_loader.m_entries.pop_back(); }
    EntryScope(const EntryScope&) = delete;
    EntryScope& operator=(const EntryScope&) = delete;

private:
    ModuleLoader& m_loader;
};

ModuleLoader::ModuleLoader(std::filesystem::path folder, const Faults& faults)
    : m_libraries(std::move(folder), faults),
      m_resources(m_libraries),
      m_linker(*this),
      m_self(std::make_shared<ModuleLoader*>(this)) {
    m_registry.add(L"DynamicLinker", L"VxRxDynamicLinker", m_linker);
}

ModuleLoader::~ModuleLoader() {
    unloadAll();
    *m_self = nullptr;
}

bool ModuleLoader::loadModule(std::wstring_view fileName) {
    const HINSTANCE library = m_libraries.load(fileName);
    if (library == nullptr)
        return fail(fileName, m_libraries.failureText());
    if (isLoaded(fileName)) {
        m_libraries.free(library);
        return true;
    }

    std::string reason;
    std::unique_ptr<HostModule> recognized = HostModule::recognize(m_libraries, library, reason);
    if (recognized == nullptr) {
        m_libraries.free(library);
        return fail(fileName, reason);
    }
    // It counts as loaded during its load message, in which it may well ask for itself.
    HostModule& module = *m_modules.emplace_back(std::move(recognized));
    if (const int answer = send(module, VxRxMessage::kInitApp); answer != 0) {
        forget(module);
        return fail(fileName, "it answered " + std::to_string(answer) + " to the load message");
    }
    return true;
}

bool ModuleLoader::unloadModule(std::wstring_view fileName) {
    const auto found = find(fileName);
    if (found == m_modules.end())
        return fail(fileName, "it is not loaded");
    if (!(*found)->isUnlocked())
        return fail(fileName, "it does not let itself be unloaded");
    if (std::find(m_entries.begin(), m_entries.end(), found->get()) != m_entries.end())
        return fail(fileName, "it is busy with a message");
    const std::size_t pinned = m_libraries.stillMapped().size();
    unload(**found);
    if (m_libraries.stillMapped().size() > pinned)
        return fail(fileName,
                    "it is unloaded, but stays in the process: its next load would find "
                    "what this one left");
    return true;
}

void ModuleLoader::unloadAll() {
    while (!m_modules.empty())
        unload(*m_modules.back());
}

bool ModuleLoader::isLoaded(std::wstring_view fileName) const {
    return find(fileName) != m_modules.end();
}

HostModule* ModuleLoader::findByPacket(const void* packet) const {
    const auto found =
        std::find_if(m_modules.begin(), m_modules.end(),
                     [packet](const auto& module) { return module.get() == packet; });
    return found == m_modules.end() ? nullptr : found->get();
}

HINSTANCE ModuleLoader::runningModule() const {
    return m_entries.empty() ? nullptr : m_entries.back()->library();
}

ModuleLoader::Modules::const_iterator ModuleLoader::find(std::wstring_view fileName) const {
    return std::find_if(m_modules.begin(), m_modules.end(), [&](const auto& module) {
        return equalNoCase(toWide(m_libraries.fileName(module->library())), fileName);
    });
}

int ModuleLoader::send(HostModule& module, VxRxMessage message) {
    const Turn turn;
    const EntryScope running(*this, module);
    return module.send(message);
}

void ModuleLoader::forget(const HostModule& module) {
    const HINSTANCE library = module.library();
    // A service whose module is gone would hand out the addresses of nothing.
    m_registry.dropServicesOf(library);
    std::erase_if(m_modules, [&module](const auto& known) { return known.get() == &module; });
    close(library);
}

void ModuleLoader::close(HINSTANCE library) {
    Turn::putOff([self = m_self, library] {
        if (*self != nullptr)
            (*self)->m_libraries.free(library);
    });
}

void ModuleLoader::unload(HostModule& module) {
    send(module, VxRxMessage::kUnloadApp);
    forget(module);
}

bool ModuleLoader::fail(std::wstring_view fileName, const std::string& reason) {
    m_failureText = toUtf8(fileName) + ": " + reason;
    return false;
}

}  // namespace workbench
