#pragma once

#include "workbench/resources/resource_directory.h"

#include <dlfcn.h>

#include <stdexcept>
#include <string>

/// A resource module of the build, open as long as this object lives.
class LoadedModule {
public:
    /// `file` is the name in the folder of the build's libraries. Throws if it cannot be opened.
    explicit LoadedModule(const std::string& file)
        : m_handle(dlopen((WORKBENCH_BIN_DIR "/" + file).c_str(), RTLD_NOW | RTLD_LOCAL)) {
        if (m_handle == nullptr)
            throw std::runtime_error(dlerror());
    }
    ~LoadedModule() { dlclose(m_handle); }
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    /// The module's table; null if the module does not export one.
    const ResourceDirectory* directory() const {
        return static_cast<const ResourceDirectory*>(dlsym(m_handle, kResourceDirectorySymbol));
    }

private:
    void* m_handle;  // owned, closed by the destructor
};
