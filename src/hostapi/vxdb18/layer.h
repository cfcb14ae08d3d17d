#pragma once

#include <hostapi/export.h>
#include <hostapi/vxdb18/database.h>

/// A layer. Its setters need it open for writing.
class VXHOST VxDbLayerTableRecord : public VxDbSymbolTableRecord {
public:
    virtual bool isOff() const = 0;
    virtual void setIsOff(bool off) = 0;
    /// Whether it is frozen in all viewports.
    virtual bool isFrozen() const = 0;
    /// Returns 0 on success; 22 for the current layer, which can't be frozen.
    virtual Zorq::ErrorStatus setIsFrozen(bool frozen) = 0;
    virtual bool isLocked() const = 0;
    virtual void setIsLocked(bool locked) = 0;
};

/// Walks the layers.
class VXHOST VxDbLayerTableIterator : public VxDbSymbolTableIterator {
public:
    /// Leaves out the layers that were reconciled; from the next `start` or `step` on.
    virtual void setSkipReconciled(bool skip) = 0;
};

/// The table of the layers.
class VXHOST VxDbLayerTable : public VxDbObject {
public:
    /// A walk from the start, or from the end, with or without the erased records. Returns 0 on
    /// success.
    virtual Zorq::ErrorStatus newIterator(VxDbLayerTableIterator*& iterator, bool atStart,
                                          bool skipErased) const = 0;
    /// Whether there are layers that came since the drawing's layers were last looked over, and were
    /// not accepted yet.
    virtual bool hasUnreconciledLayers() const = 0;
};
