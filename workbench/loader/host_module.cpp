#include "workbench/loader/host_module.h"

namespace workbench {

std::unique_ptr<HostModule> HostModule::recognize(LibraryTable& libraries, HINSTANCE library,
                                                  std::string& reason) {
    using Handshake = int (*)();
    const auto handshake =
        reinterpret_cast<Handshake>(libraries.symbol(library, "vxrxGetApiVersion"));
    if (handshake == nullptr) {
        reason = "it has no vxrxGetApiVersion";
        return nullptr;
    }
    if (const int version = handshake(); version != kVxRxApiVersion) {
        reason = "it is made for version " + std::to_string(version) + " of the host, not for " +
                 std::to_string(kVxRxApiVersion);
        return nullptr;
    }
    const auto entryPoint =
        reinterpret_cast<EntryPoint>(libraries.symbol(library, "vxrxEntryPoint"));
    if (entryPoint == nullptr) {
        reason = "it has no vxrxEntryPoint";
        return nullptr;
    }
    return std::unique_ptr<HostModule>(new HostModule(library, entryPoint));
}

}  // namespace workbench
