#include "workbench/editor/document_locks.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <numeric>

namespace workbench {

bool DocumentLocks::lock(int mode) {
    static constexpr int kLocks[] = {kAutoWrite, kWrite, kProtectedWrite, kExclusiveWrite, kRead};
    if (std::find(std::begin(kLocks), std::end(kLocks), mode) == std::end(kLocks))
        return false;
    m_modes.push_back(mode);
    return true;
}

bool DocumentLocks::unlock() {
    if (m_modes.empty())
        return false;
    m_modes.pop_back();
    return true;
}

int DocumentLocks::mode() const {
    return std::accumulate(m_modes.begin(), m_modes.end(), 0, std::bit_or<>());
}

}  // namespace workbench
