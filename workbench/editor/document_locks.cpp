#include "workbench/editor/document_locks.h"

#include <algorithm>
#include <iterator>

namespace workbench {

bool DocumentLocks::lock(int mode, const void* owner) {
    static constexpr int kModes[] = {kAutoWrite, kWrite, kProtectedWrite, kExclusiveWrite, kRead};
    if (std::find(std::begin(kModes), std::end(kModes), mode) == std::end(kModes))
        return false;
    m_locks.push_back({mode, owner});
    return true;
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
    return (mode() & (kAutoWrite | kWrite | kProtectedWrite | kExclusiveWrite)) != 0;
}

}  // namespace workbench
