#pragma once

#include <hostapi/export.h>
#include <hostapi/vxdb18/database.h>

/// A text style.
class VXHOST VxDbTextStyleTableRecord : public VxDbSymbolTableRecord {
public:
    /// The height of all its texts in drawing units; 0 lets each text have its own.
    virtual double textSize() const = 0;
};

/// The table of the text styles.
class VXHOST VxDbTextStyleTable : public VxDbObject {
public:
    /// A walk from the start, or from the end, with or without the erased records. Returns 0 on
    /// success.
    virtual Zorq::ErrorStatus newIterator(VxDbSymbolTableIterator*& iterator, bool atStart,
                                          bool skipErased) const = 0;
};
