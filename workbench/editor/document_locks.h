#pragma once

#include <vector>

namespace workbench {

/// The locks of one document: a stack, since the scopes that take them are nested.
class DocumentLocks {
public:
    static constexpr int kAutoWrite = 1;
    static constexpr int kNotLocked = 2;
    static constexpr int kWrite = 4;
    static constexpr int kProtectedWrite = 8;
    static constexpr int kExclusiveWrite = 16;
    static constexpr int kRead = 32;

    /// Takes a lock. False for a mode that locks nothing or that is not one mode.
    bool lock(int mode);
    /// Ends the last lock. False if there is none.
    bool unlock();
    /// The bits of all present locks; 0 for none.
    int mode() const;

private:
    std::vector<int> m_modes;  // the last one innermost
};

}  // namespace workbench
