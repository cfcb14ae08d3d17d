#include "workbench/editor/document_locks.h"

#include "workbench/editor/statuses.h"

#include <algorithm>
#include <iterator>

namespace workbench {

namespace {

/// The modes that a lock leaves to other owners.
struct Sharing {
    int mode;
    int others;
};

constexpr int kShared = DocumentLocks::kAutoWrite | DocumentLocks::kWrite;

constexpr Sharing kSharings[] = {
    {DocumentLocks::kAutoWrite, kShared | DocumentLocks::kRead},
    {DocumentLocks::kWrite, kShared | DocumentLocks::kRead},
    {DocumentLocks::kProtectedWrite, DocumentLocks::kRead},
    {DocumentLocks::kExclusiveWrite, 0},
    {DocumentLocks::kRead, kShared | DocumentLocks::kProtectedWrite | DocumentLocks::kRead},
};

const Sharing* findSharing(int mode) {
    const auto* const found = std::find_if(std::begin(kSharings), std::end(kSharings),
                                           [mode](const Sharing& row) { return row.mode == mode; });
    return found == std::end(kSharings) ? nullptr : found;
}

}  // namespace

Zorq::ErrorStatus DocumentLocks::lock(int mode, const void* owner) {
    if (findSharing(mode) == nullptr)
        return kInvalidInput;
    if (isRefused(mode, owner))
        return kLockViolation;
    m_locks.push_back({mode, owner});
    return Zorq::eOk;
}

Zorq::ErrorStatus DocumentLocks::lockScope(int mode, const void* owner) {
    const Zorq::ErrorStatus status = lock(mode, owner);
    if (status == kLockViolation)
        m_locks.push_back({0, owner});
    return status;
}

bool DocumentLocks::isRefused(int mode, const void* owner) const {
    const int others = findSharing(mode)->others;
    return std::any_of(m_locks.begin(), m_locks.end(), [others, owner](const Lock& lock) {
        return lock.owner != owner && (lock.mode & ~others) != 0;
    });
}

bool DocumentLocks::unlock(const void* owner) {
    const auto last = std::find_if(m_locks.rbegin(), m_locks.rend(),
                                   [owner](const Lock& lock) { return lock.owner == owner; });
    if (last == m_locks.rend())
        return false;
    m_locks.erase(std::next(last).base());
    return true;
}

int DocumentLocks::mode() const {
    int bits = 0;
    for (const Lock& lock : m_locks)
        bits |= lock.mode;
    return bits;
}

bool DocumentLocks::isForWriting() const {
    return (mode() & (kAutoWrite | kWrite | kProtectedWrite | kExclusiveWrite)) != 0 &&
           m_locks.back().mode != 0;
}

}  // namespace workbench
