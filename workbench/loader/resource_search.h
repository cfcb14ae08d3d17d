#pragma once

#include "workbench/loader/library_table.h"
#include "workbench/loader/string_trace.h"

#include <hostapi/window/module.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace workbench {

/// Where the window framework looks for resources: the current library, and the chain of libraries
/// that were attached to it.
class ResourceSearch {
public:
    explicit ResourceSearch(LibraryTable& libraries) : m_libraries(libraries) {}

    HINSTANCE current() const { return m_current; }
    void setCurrent(HINSTANCE library) { m_current = library; }

    /// Attaches a library and fills its record. False if the record is attached already.
    bool attach(AFX_EXTENSION_MODULE& record, HINSTANCE library);
    void detach(AFX_EXTENSION_MODULE& record);
    std::size_t attachedCount() const { return m_chain.size(); }

    /// A string by its number: of the current library, or else of the attached ones, the one that was
    /// attached last first. Of an attached one that is where its record says its resources are, or, if
    /// it says nothing, the library itself. Nothing if none of them has it.
    std::optional<std::wstring> string(UINT number);
    /// A bitmap, which is 16 pixels high, by its number, found as strings are. Nothing if none has it.
    std::optional<PictureBytes> bitmap(UINT number);

    /// The strings that were handed out.
    const StringTrace& trace() const { return m_trace; }

private:
    template <class Find>
    auto findInAll(Find find);

    LibraryTable& m_libraries;
    HINSTANCE m_current = nullptr;
    std::vector<const AFX_EXTENSION_MODULE*> m_chain;  // not owned
    StringTrace m_trace;
};

}  // namespace workbench
