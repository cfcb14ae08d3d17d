#pragma once

#include <hostapi/export.h>
#include <hostapi/vxdb18/database.h>

/// The name of an entity or of a selection set while the drawing is open; both zero for none.
struct VxEdName {
    std::int64_t number[2] = {0, 0};
    friend bool operator==(const VxEdName&, const VxEdName&) = default;
};

/// A drawn object.
class VXHOST VxDbEntity : public VxDbObject {
public:
    /// The layer that it lies on.
    virtual VxDbObjectId layerId() const = 0;
};

/// Opens an entity, as `vxdbOpenObject` does; an object of another class is refused.
Zorq::ErrorStatus vxdbOpenVxDbEntity(VxDbEntity*& entity, VxDbObjectId id, VxDbOpenMode mode);
/// The ID of an entity by its name. Returns 0 on success; another status for a name without an entity,
/// with the ID left alone.
Zorq::ErrorStatus vxdbGetObjectId(VxDbObjectId& id, const VxEdName& name);
