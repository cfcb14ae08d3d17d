#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>
#include <hostapi/vxdb18/database.h>
#include <hostapi/vxdb18/layer.h>
#include <hostapi/window/image_list.h>

#include <cstddef>
#include <memory>

/// The host's layer filters.

struct VxLyLayerFilterData;
class VxLyLayerFilter;

/// An array of filters, which it doesn't own.
using VxLyLayerFilterArray = CTypedPtrArray<VxLyLayerFilter*>;

/// A layer filter with the filters nested in it, which it owns. Part of a copy of a drawing's tree, so
/// that it says nothing of what the drawing gets later.
class VXHOST VxLyLayerFilter {
public:
    VxLyLayerFilter();
    VxLyLayerFilter(const VxLyLayerFilter&) = delete;
    VxLyLayerFilter& operator=(const VxLyLayerFilter&) = delete;
    virtual ~VxLyLayerFilter();

    /// Takes room for a filter on the host's heap; null if there is none.
    static void* operator new(std::size_t size) noexcept;
    static void operator delete(void* room) noexcept;

    virtual VxString name() const;
    /// Returns 0 on success.
    virtual Zorq::ErrorStatus setName(const VxString& name);
    /// Whether the user may give it another name.
    virtual bool allowRename() const;
    /// The pictures for the filter and for the selected filter. A null list stands for the strip of
    /// pictures that every show of filters has. The list stays the host's. Whether there are any.
    virtual bool getImages(HIMAGELIST& list, int& normal, int& selected) const;
    /// The filter that this one is nested in, null at the root.
    virtual VxLyLayerFilter* parent() const;
    /// The nested filters in the host's order.
    virtual VxLyLayerFilterArray nestedFilters() const;
    /// Nests a filter as the last one, and owns it from now on. Returns 0 on success; otherwise it stays
    /// the caller's.
    virtual Zorq::ErrorStatus addNested(VxLyLayerFilter* filter);
    /// Takes a nested filter out and hands it to the caller. Returns 0 on success; otherwise it stays
    /// where it is.
    virtual Zorq::ErrorStatus removeNested(VxLyLayerFilter* filter);
    /// Has those nested filters made anew that depend on the drawing. Returns 0 on success.
    virtual Zorq::ErrorStatus regenerateNested();
    /// Whether the host made this filter and keeps it up to date.
    virtual bool dynamicallyGenerated() const;
    /// Whether filters may be nested in it.
    virtual bool allowNested() const;
    /// Whether the user may delete it.
    virtual bool allowDelete() const;
    /// Whether the filter is a plain list of layers.
    virtual bool isIdFilter() const;
    /// Whether the filter shows a layer.
    virtual bool contains(const VxDbLayerTableRecord* layer) const;

private:
    friend struct VxLyLayerFilterData;

    std::unique_ptr<VxLyLayerFilterData> m_data;  // the host's; never null
};

/// A filter that is a list of layers. A new one is empty and has no name.
class VXHOST VxLyLayerGroup : public VxLyLayerFilter {
public:
    VxLyLayerGroup();

    /// Adds a layer; one that it has already stays. Returns 0 on success.
    virtual Zorq::ErrorStatus addLayerId(VxDbObjectId layer);
    /// Takes a layer off. Returns 0 on success; another status for one that it hasn't.
    virtual Zorq::ErrorStatus removeLayerId(VxDbObjectId layer);
    /// The layers, in the order in which they came.
    virtual VxDbObjectIdArray layerIds() const;
};

/// The layer filters of a drawing.
class VXHOST VxLyLayerFilterManager {
public:
    virtual ~VxLyLayerFilterManager() = default;
    /// A copy of the tree, which the caller owns, and the filter in force, which is part of it; null for
    /// none. Returns 0 on success; otherwise both are null.
    virtual Zorq::ErrorStatus getFilters(VxLyLayerFilter*& root, VxLyLayerFilter*& current) = 0;
    /// Stores a tree; it stays the caller's. A `current` that is null or stands outside of the tree makes
    /// the root the filter in force. Returns 0 on success.
    virtual Zorq::ErrorStatus setFilters(const VxLyLayerFilter* root,
                                         const VxLyLayerFilter* current) = 0;
};

/// The layer filters of a database, null if it has none. Not handed over.
VxLyLayerFilterManager* vxlyGetLayerFilterManager(VxDbDatabase* database);
