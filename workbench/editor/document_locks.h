#pragma once

#include <hostapi/types.h>

#include <vector>

namespace workbench {

/// The locks of one document, each of which somebody owns. While none of them is for writing, modules
/// may not write to the drawing.
///
/// An owner's locks never stand in its own way. Those of different owners do where one is exclusive,
/// or where one is protected and the other for writing too: a reader is in the way of the exclusive
/// lock alone.
class DocumentLocks {
public:
    static constexpr int kAutoWrite = 1;
    static constexpr int kNotLocked = 2;
    static constexpr int kWrite = 4;
    static constexpr int kProtectedWrite = 8;
    static constexpr int kExclusiveWrite = 16;
    static constexpr int kRead = 32;

    /// Takes a lock for an owner, who may have several. `kInvalidInput` for a mode that locks nothing
    /// or that is not one mode, `kLockViolation` if another owner's lock is in the way.
    Zorq::ErrorStatus lock(int mode, const void* owner);
    /// As `lock`, for code that doesn't hear the answer and runs until `unlock`: where a lock is in
    /// its way, nobody writes to the drawing meanwhile.
    Zorq::ErrorStatus lockScope(int mode, const void* owner);
    /// Ends the last lock, or refused scope, of an owner; those of others stay, older and younger
    /// ones. False if the owner has none.
    bool unlock(const void* owner);
    /// The bits of all present locks; 0 for none.
    int mode() const;
    /// Whether one of the present locks is for writing, and the youngest was no refused scope.
    bool isForWriting() const;

private:
    struct Lock {
        int mode;           // 0: a scope that was refused
        const void* owner;  // compared only
    };
    bool isRefused(int mode, const void* owner) const;

    std::vector<Lock> m_locks;  // in the order in which they were taken
};

}  // namespace workbench
