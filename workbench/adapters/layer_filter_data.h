#pragma once

#include "workbench/drawing/database/status.h"
#include "workbench/drawing/records/layer_filters.h"

#include <hostapi/vxly.h>

#include <memory>
#include <vector>

/// What the host knows of a filter in the hands of a module. Those nested in it are objects of their
/// own, so that the children of its members are empty.
struct VxLyLayerFilterData {
    workbench::drawing::LayerFilter filter;
    VxLyLayerFilter* parent = nullptr;  // not owned; null at the root and outside of a tree
    std::vector<std::unique_ptr<VxLyLayerFilter>> nested;

    static VxLyLayerFilterData& of(VxLyLayerFilter& filter) { return *filter.m_data; }
    static const VxLyLayerFilterData& of(const VxLyLayerFilter& filter) { return *filter.m_data; }
};

namespace workbench {

/// Filters may be nested in all but those that the drawing keeps itself, the root excepted.
bool allowsNested(const drawing::LayerFilter& filter);
/// Nests a filter in another as the last one, which owns it from now on; refused for one that is in a
/// tree already, and for one that would then be nested in itself.
drawing::Status nestFilter(VxLyLayerFilter& parent, VxLyLayerFilter* filter);
/// Takes a nested filter out and hands it over; null if it isn't directly nested in the other.
std::unique_ptr<VxLyLayerFilter> takeNestedFilter(VxLyLayerFilter& parent,
                                                  const VxLyLayerFilter* filter);

/// A filter with all below it as objects for a module, whose they are.
std::unique_ptr<VxLyLayerFilter> makeFilterObjects(const drawing::LayerFilter& filter);
/// The other way.
drawing::LayerFilter filterOfObjects(const VxLyLayerFilter& object);
/// The first object of a tree whose filter bears a name, without regard to case; null for none.
VxLyLayerFilter* findFilterObject(VxLyLayerFilter& start, const std::string& name);
/// Whether an object is part of a tree.
bool isInTree(const VxLyLayerFilter& start, const VxLyLayerFilter* filter);

}  // namespace workbench
