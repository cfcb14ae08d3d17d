#pragma once

#include <hostapi/types.h>

class VxApDocument;

/// The mode in which `VxAxDocLock` locks a document for writing.
constexpr int kLockForWrite = 1;

/// Locks the MDI-active document for writing while it lives, unless it is locked for writing
/// already.
class VxDaDocLock {
public:
    VxDaDocLock();
    VxDaDocLock(const VxDaDocLock&) = delete;
    VxDaDocLock& operator=(const VxDaDocLock&) = delete;
    virtual ~VxDaDocLock();

    /// 0 if the document may be written; the lock's status if it failed; 374 without a document.
    Zorq::ErrorStatus status() const { return m_status; }

private:
    VxApDocument* m_document = nullptr;  // not owned; null when nothing was locked
    Zorq::ErrorStatus m_status = kNoDocument;

    static constexpr Zorq::ErrorStatus kNoDocument = 374;
};
