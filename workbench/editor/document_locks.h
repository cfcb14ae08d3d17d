#pragma once

#include <vector>

namespace workbench {

/// The locks of one document, each of which somebody owns. While none of them is for writing, modules
/// may not write to the drawing.
class DocumentLocks {
public:
    static constexpr int kAutoWrite = 1;
    static constexpr int kNotLocked = 2;
    static constexpr int kWrite = 4;
    static constexpr int kProtectedWrite = 8;
    static constexpr int kExclusiveWrite = 16;
    static constexpr int kRead = 32;

    /// Takes a lock for an owner, who may have several. False for a mode that locks nothing or that is
    /// not one mode.
    bool lock(int mode, const void* owner);
    /// Ends the last lock of an owner; those of others stay, older and younger ones. False if the
    /// owner has none.
    bool unlock(const void* owner);
    /// The bits of all present locks; 0 for none.
    int mode() const;
    /// Whether one of the present locks is for writing.
    bool isForWriting() const;

private:
    struct Lock {
        int mode;
        const void* owner;  // compared only
    };
    std::vector<Lock> m_locks;  // in the order in which they were taken
};

}  // namespace workbench
