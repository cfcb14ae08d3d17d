#pragma once

#include "workbench/core/faults.h"
#include "workbench/resources/resource_library.h"

#include <hostapi/types.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// Errors of the library calls, in the numbers of `GetLastError`.
constexpr DWORD kErrorNone = 0;
constexpr DWORD kErrorFileNotFound = 2;
constexpr DWORD kErrorInvalidHandle = 6;
constexpr DWORD kErrorModuleNotFound = 126;
constexpr DWORD kErrorSymbolNotFound = 127;
constexpr DWORD kErrorBadLibrary = 193;

/// The libraries that are open, by the name of their file in the library folder; case doesn't
/// count in names. Each is opened once and counted; with its last count it is closed.
///
/// A library that the faults hide is neither loaded nor found, even if it is open already; a hidden
/// symbol isn't found either.
class LibraryTable {
public:
    LibraryTable(std::filesystem::path folder, const Faults& faults);
    LibraryTable(const LibraryTable&) = delete;
    LibraryTable& operator=(const LibraryTable&) = delete;
    /// Closes what is still open, latest first.
    ~LibraryTable();

    /// Opens a library or counts it up. Null on failure; `error` and `failureText` tell why.
    HINSTANCE load(std::wstring_view fileName);
    /// Counts a library down. False for an unknown handle.
    bool free(HINSTANCE library);
    /// An open library, not counted; null if it isn't open.
    HINSTANCE find(std::wstring_view fileName);
    /// A symbol that a library exports; null for none.
    void* symbol(HINSTANCE library, const std::string& name);

    /// The texts and pictures of a library; empty for an unknown handle and for a library without.
    ResourceLibrary resources(HINSTANCE library);
    /// The library's file as it is called on disk, without the folder; empty for an unknown handle.
    /// Good until the library is closed.
    std::string_view fileName(HINSTANCE library) const;
    std::size_t openCount() const { return m_open.size(); }

    /// What went wrong last, 0 for nothing yet. Success leaves it alone.
    DWORD error() const { return m_error; }
    void setError(DWORD error) { m_error = error; }
    /// The words of the system's loader for the last failed load.
    const std::string& failureText() const { return m_failureText; }

    /// The files that stayed in the process after they had been closed. Their state would not be
    /// fresh at the next load.
    const std::vector<std::string>& stillMapped() const { return m_stillMapped; }

private:
    struct Library {
        std::filesystem::path path;
        std::string fileName;  // the end of the path
        void* handle;          // of the system's loader
        int count;
    };
    using Libraries = std::map<std::uintptr_t, Library>;  // by handle number, ascending by age

    std::filesystem::path fileOf(std::wstring_view name) const;
    Libraries::iterator findOpen(std::wstring_view fileName);
    Libraries::const_iterator findHandle(HINSTANCE library) const;
    HINSTANCE open(const std::filesystem::path& path);
    void close(Libraries::iterator library);
    HINSTANCE fail(DWORD error, std::string text);

    std::filesystem::path m_folder;
    const Faults& m_faults;
    Libraries m_open;
    std::uintptr_t m_lastHandle = 0;  // handles are never given out again
    DWORD m_error = kErrorNone;
    std::string m_failureText;
    std::vector<std::string> m_stillMapped;
};

/// The system's text for an error of `GetLastError`, without a full stop.
std::wstring systemErrorText(DWORD error);

}  // namespace workbench
