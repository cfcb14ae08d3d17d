#include "workbench/adapters/host_values.h"

namespace workbench {

namespace {

constexpr unsigned kHandleBits = 32;

}  // namespace

VxDbObjectId toHostId(drawing::ObjectId id) {
    return {(static_cast<std::uint64_t>(id.database()) << kHandleBits) | id.handle()};
}

drawing::ObjectId fromHostId(VxDbObjectId id) {
    return {static_cast<std::uint32_t>(id.number >> kHandleBits),
            static_cast<std::uint32_t>(id.number)};
}

drawing::OpenMode openModeOf(VxDbOpenMode mode) {
    return mode == VxDbOpenMode::kForWrite ? drawing::OpenMode::Write : drawing::OpenMode::Read;
}

Zorq::ErrorStatus toHostStatus(drawing::Status status) {
    return static_cast<Zorq::ErrorStatus>(status);
}

}  // namespace workbench
