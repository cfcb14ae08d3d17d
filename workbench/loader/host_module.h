#pragma once

#include "workbench/loader/library_table.h"

#include <hostapi/types.h>
#include <hostapi/vxdb18/dynamic_linker.h>

#include <memory>
#include <string>

namespace workbench {

/// A module that the host has loaded. Its address is the packet that the module gets with each
/// message.
class HostModule {
public:
    /// Checks the handshake of an open library. Null, with the reason, if it is not a module of
    /// this host. The library stays the caller's.
    static std::unique_ptr<HostModule> recognize(LibraryTable& libraries, HINSTANCE library,
                                                 std::string& reason);

    HINSTANCE library() const { return m_library; }

    /// The module may be unloaded while the host runs.
    bool isUnlocked() const { return m_unlocked; }
    void unlock() { m_unlocked = true; }
    /// The module copes with several documents.
    bool isMdiAware() const { return m_mdiAware; }
    void setMdiAware() { m_mdiAware = true; }

    /// Sends the module a message and returns its answer; 0 is success.
    int send(VxRxMessage message) { return m_entryPoint(static_cast<int>(message), this); }

private:
    using EntryPoint = int (*)(int message, void* packet);

    HostModule(HINSTANCE library, EntryPoint entryPoint)
        : m_library(library),
          m_entryPoint(entryPoint) {}

    HINSTANCE m_library;  // counted by whoever loaded it
    EntryPoint m_entryPoint;
    bool m_unlocked = false;
    bool m_mdiAware = false;
};

}  // namespace workbench
