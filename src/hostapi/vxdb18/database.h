#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>

class VxDbDatabase;

/// How an object is opened.
enum class VxDbOpenMode : int { kForRead = 0, kForWrite = 1 };

/// The lasting ID of a database object, for the time that its database is open. Never reused.
struct VxDbObjectId {
    std::uint64_t number = 0;  ///< 0 is the null ID.
    bool isNull() const { return number == 0; }
    /// Whether the ID names an object of an open database, erased ones included.
    bool isValid() const;
    friend bool operator==(const VxDbObjectId&, const VxDbObjectId&) = default;
};

/// An array of IDs.
using VxDbObjectIdArray = std::vector<VxDbObjectId>;

/// An object of a database. Open from `vxdbOpenObject` to `close`.
class VXHOST VxDbObject {
public:
    virtual ~VxDbObject() = default;
    /// The object's ID; null as long as it is in no database.
    virtual VxDbObjectId objectId() const = 0;
    /// Turns an opening for reading into one for writing. Returns 0 on success, also if it is one
    /// already; 5 where another opening reads the object; as `vxdbOpenObject` otherwise.
    virtual Zorq::ErrorStatus upgradeOpen() = 0;
    /// Ends this opening; what was written stands from now on.
    virtual Zorq::ErrorStatus close() = 0;
};

/// A background behind a view.
class VXHOST VxDbBackground : public VxDbObject {
public:
    /// The kind of background; 11 is the sky.
    virtual int type() const = 0;
};

/// The sun of a view.
class VXHOST VxDbSun : public VxDbObject {
public:
    /// Whether the sky gives light.
    virtual bool skyIllumination() const = 0;
};

/// A viewport of model space.
class VXHOST VxDbViewportTableRecord : public VxDbObject {
public:
    virtual VxDbObjectId background() const = 0;
    virtual VxDbObjectId sunId() const = 0;
};

/// A viewport of paper space.
class VXHOST VxDbViewport : public VxDbObject {
public:
    /// Whether the view may not be changed.
    virtual bool isLocked() const = 0;
    virtual VxDbObjectId background() const = 0;
    virtual VxDbObjectId sunId() const = 0;
    /// Freezes layers in this viewport alone. Returns 0 on success; at the first ID that is no layer its
    /// status, with the layers before it frozen.
    virtual Zorq::ErrorStatus freezeLayersInViewport(const VxDbObjectIdArray& layers) = 0;
    /// Thaws layers that are frozen in this viewport alone; as above.
    virtual Zorq::ErrorStatus thawLayersInViewport(const VxDbObjectIdArray& layers) = 0;
};

/// A record of a symbol table: a thing with a name.
class VXHOST VxDbSymbolTableRecord : public VxDbObject {
public:
    /// The name. Returns 0 on success.
    virtual Zorq::ErrorStatus getName(VxString& name) const = 0;
    /// Whether the record comes from a referenced drawing and goes with it.
    virtual bool isDependent() const = 0;
};

/// Walks the records of a symbol table, in the table's order. Deleted by whoever asked for it.
class VXHOST VxDbSymbolTableIterator {
public:
    virtual ~VxDbSymbolTableIterator() = default;
    /// Begins the walk anew, at the first record or at the last one, with or without erased records.
    virtual void start(bool atBeginning = true, bool skipErased = true) = 0;
    /// Whether the walk is over.
    virtual bool done() const = 0;
    /// Goes to the next record, or to the one before.
    virtual void step(bool forward = true, bool skipErased = true) = 0;
    /// The record's ID. Returns 0 on success.
    virtual Zorq::ErrorStatus getRecordId(VxDbObjectId& id) const = 0;
};

/// A named view.
class VXHOST VxDbViewTableRecord : public VxDbSymbolTableRecord {};

/// Walks the records of the view table.
class VXHOST VxDbViewTableIterator : public VxDbSymbolTableIterator {
public:
    /// The record, open, to be closed by the caller. Returns 0 on success.
    virtual Zorq::ErrorStatus getRecord(VxDbViewTableRecord*& record, VxDbOpenMode mode) const = 0;
};

/// The table of the named views.
class VXHOST VxDbViewTable : public VxDbObject {
public:
    /// A walk from the start, or from the end, with or without the erased records. Returns 0 on
    /// success.
    virtual Zorq::ErrorStatus newIterator(VxDbViewTableIterator*& iterator, bool atStart,
                                          bool skipErased) const = 0;
};

class VxDbLayerTable;
class VxDbTextStyleTable;

/// A drawing's database.
class VXHOST VxDbDatabase {
public:
    virtual ~VxDbDatabase() = default;
    /// Whether model space is active.
    virtual bool tilemode() const = 0;
    /// The viewport that is the sheet of the current layout, null for none.
    virtual VxDbObjectId paperSpaceVportId() const = 0;
    /// Length of a step of the navigation tools, in drawing units.
    virtual double stepSize() const = 0;
    /// Steps a second of the navigation tools.
    virtual double stepsPerSec() const = 0;
    /// Whether cameras are drawn.
    virtual bool cameraDisplay() const = 0;
    /// The current layer, null for none.
    virtual VxDbObjectId clayer() const = 0;
    /// The table of the named views, open, to be closed by the caller. Returns 0 on success.
    virtual Zorq::ErrorStatus getSymbolTable(VxDbViewTable*& table, VxDbOpenMode mode) = 0;
    /// The table of the layers, likewise.
    virtual Zorq::ErrorStatus getSymbolTable(VxDbLayerTable*& table, VxDbOpenMode mode) = 0;
    /// The table of the text styles, likewise.
    virtual Zorq::ErrorStatus getSymbolTable(VxDbTextStyleTable*& table, VxDbOpenMode mode) = 0;
};

/// Opens an object. On status 0 the object is handed out, to be closed by the caller. It can't be
/// opened for writing while its document is not locked for that (`VxApDocManager::lockDocument`).
Zorq::ErrorStatus vxdbOpenObject(VxDbObject*& object, VxDbObjectId id, VxDbOpenMode mode);
