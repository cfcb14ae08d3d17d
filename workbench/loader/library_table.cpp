#include "workbench/loader/library_table.h"

#include "workbench/base/text.h"

#include <dlfcn.h>

#include <algorithm>
#include <iterator>

namespace workbench {

namespace {

namespace fs = std::filesystem;

/// What the system's loader has to say about its last failure.
std::string loaderText() {
    const char* text = dlerror();
    return text == nullptr ? "unknown reason" : text;
}

HINSTANCE toHandle(std::uintptr_t number) {
    return reinterpret_cast<HINSTANCE>(number);
}

bool isMapped(const fs::path& path) {
    void* const handle = dlopen(path.c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (handle == nullptr)
        return false;
    dlclose(handle);
    return true;
}

}  // namespace

LibraryTable::LibraryTable(fs::path folder, const Faults& faults)
    : m_folder(std::move(folder)),
      m_faults(faults) {}

LibraryTable::~LibraryTable() {
    while (!m_open.empty())
        close(std::prev(m_open.end()));
}

HINSTANCE LibraryTable::load(std::wstring_view fileName) {
    const std::string name = toUtf8(fileName);
    if (m_faults.isHidden(name))
        return fail(kErrorFileNotFound, name + " is hidden");
    if (const auto known = findOpen(fileName); known != m_open.end()) {
        if (m_faults.isHidden(known->second.fileName))
            return fail(kErrorFileNotFound, name + " is hidden");
        ++known->second.count;
        return toHandle(known->first);
    }
    const fs::path path = fileOf(fileName);
    if (path.empty())
        return fail(kErrorFileNotFound, name + " is not in " + m_folder.string());
    if (m_faults.isHidden(path.filename().string()))
        return fail(kErrorFileNotFound, name + " is hidden");
    return open(path);
}

bool LibraryTable::free(HINSTANCE library) {
    const auto found = m_open.find(reinterpret_cast<std::uintptr_t>(library));
    if (found == m_open.end()) {
        m_error = kErrorInvalidHandle;
        return false;
    }
    if (--found->second.count == 0)
        close(found);
    return true;
}

HINSTANCE LibraryTable::find(std::wstring_view fileName) {
    const auto found = findOpen(fileName);
    if (found == m_open.end() || m_faults.isHidden(toUtf8(fileName)) ||
        m_faults.isHidden(found->second.fileName)) {
        m_error = kErrorModuleNotFound;
        return nullptr;
    }
    return toHandle(found->first);
}

void* LibraryTable::symbol(HINSTANCE library, const std::string& name) {
    const auto found = findHandle(library);
    if (found == m_open.end()) {
        m_error = kErrorInvalidHandle;
        return nullptr;
    }
    const std::string& file = found->second.fileName;
    void* const address = m_faults.isHidden(file) || m_faults.isHidden(file, name)
                              ? nullptr
                              : dlsym(found->second.handle, name.c_str());
    if (address == nullptr)
        m_error = kErrorSymbolNotFound;
    return address;
}

ResourceLibrary LibraryTable::resources(HINSTANCE library) {
    return ResourceLibrary(
        static_cast<const ResourceDirectory*>(symbol(library, kResourceDirectorySymbol)));
}

std::string_view LibraryTable::fileName(HINSTANCE library) const {
    const auto found = findHandle(library);
    return found == m_open.end() ? std::string_view() : std::string_view(found->second.fileName);
}

fs::path LibraryTable::fileOf(std::wstring_view name) const {
    const fs::path file(toUtf8(name));
    // A name, not a road: what lies outside the folder is nobody's library.
    if (file.empty() || file.has_parent_path())
        return {};
    std::error_code ignored;
    if (fs::is_regular_file(m_folder / file, ignored))
        return m_folder / file;
    for (const fs::directory_entry& entry : fs::directory_iterator(m_folder, ignored)) {
        if (equalNoCase(toWide(entry.path().filename().string()), name))
            return entry.path();
    }
    return {};
}

LibraryTable::Libraries::iterator LibraryTable::findOpen(std::wstring_view fileName) {
    return std::find_if(m_open.begin(), m_open.end(), [fileName](const auto& entry) {
        return equalNoCase(toWide(entry.second.fileName), fileName);
    });
}

LibraryTable::Libraries::const_iterator LibraryTable::findHandle(HINSTANCE library) const {
    return m_open.find(reinterpret_cast<std::uintptr_t>(library));
}

HINSTANCE LibraryTable::open(const fs::path& path) {
    void* const handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr)
        return fail(kErrorBadLibrary, loaderText());
    m_open.emplace(++m_lastHandle, Library{path, path.filename().string(), handle, 1});
    return toHandle(m_lastHandle);
}

void LibraryTable::close(Libraries::iterator library) {
    const fs::path path = library->second.path;
    dlclose(library->second.handle);
    m_open.erase(library);
    if (isMapped(path))
        m_stillMapped.push_back(path.filename().string());
}

HINSTANCE LibraryTable::fail(DWORD error, std::string text) {
    m_error = error;
    m_failureText = std::move(text);
    return nullptr;
}

std::wstring systemErrorText(DWORD error) {
    switch (error) {
    case kErrorNone:
        return L"The operation was completed";
    case kErrorFileNotFound:
        return L"The specified file cannot be found";
    case kErrorInvalidHandle:
        return L"The handle is not valid";
    case kErrorModuleNotFound:
        return L"The specified module is not loaded";
    case kErrorSymbolNotFound:
        return L"The specified symbol cannot be found";
    case kErrorBadLibrary:
        return L"The file is not a library that this program can load";
    default:
        return L"Unknown error " + std::to_wstring(error);
    }
}

}  // namespace workbench
