#include "workbench/adapters/layer_filter_data.h"

#include "workbench/base/text.h"

#include <algorithm>

namespace workbench {

namespace {

using drawing::FilterKind;
using drawing::LayerFilter;
using drawing::Status;
using Data = VxLyLayerFilterData;

/// Whether a filter is another one or has it somewhere above.
bool isAtOrBelow(const VxLyLayerFilter* filter, const VxLyLayerFilter* other) {
    while (filter != nullptr && filter != other)
        filter = Data::of(*filter).parent;
    return filter != nullptr;
}

/// A fresh object. Not by the class's own way, which is the modules' and can be told to fail.
VxLyLayerFilter* makeObject(FilterKind kind) {
    return kind == FilterKind::Group ? ::new VxLyLayerGroup() : ::new VxLyLayerFilter();
}

}  // namespace

bool allowsNested(const LayerFilter& filter) {
    return filter.kind == FilterKind::All || !filter.isGenerated();
}

Status nestFilter(VxLyLayerFilter& parent, VxLyLayerFilter* filter) {
    if (filter == nullptr || !allowsNested(Data::of(parent).filter))
        return Status::WrongKind;
    if (Data::of(*filter).parent != nullptr || isAtOrBelow(&parent, filter))
        return Status::AlreadyInDatabase;
    Data::of(*filter).parent = &parent;
    Data::of(parent).nested.emplace_back(filter);
    return Status::Ok;
}

std::unique_ptr<VxLyLayerFilter> takeNestedFilter(VxLyLayerFilter& parent,
                                                  const VxLyLayerFilter* filter) {
    auto& nested = Data::of(parent).nested;
    const auto place = std::find_if(nested.begin(), nested.end(),
                                    [filter](const auto& one) { return one.get() == filter; });
    if (place == nested.end())
        return nullptr;
    std::unique_ptr<VxLyLayerFilter> taken = std::move(*place);
    nested.erase(place);
    Data::of(*taken).parent = nullptr;
    return taken;
}

std::unique_ptr<VxLyLayerFilter> makeFilterObjects(const LayerFilter& filter) {
    std::unique_ptr<VxLyLayerFilter> object(makeObject(filter.kind));
    Data& data = Data::of(*object);
    data.filter = filter;
    data.filter.children.clear();
    for (const LayerFilter& child : filter.children) {
        data.nested.push_back(makeFilterObjects(child));
        Data::of(*data.nested.back()).parent = object.get();
    }
    return object;
}

LayerFilter filterOfObjects(const VxLyLayerFilter& object) {
    const Data& data = Data::of(object);
    LayerFilter filter = data.filter;
    for (const auto& nested : data.nested)
        filter.children.push_back(filterOfObjects(*nested));
    return filter;
}

VxLyLayerFilter* findFilterObject(VxLyLayerFilter& start, const std::string& name) {
    const Data& data = Data::of(start);
    if (equalNoCase(data.filter.name, name))
        return &start;
    for (const auto& nested : data.nested) {
        if (VxLyLayerFilter* found = findFilterObject(*nested, name))
            return found;
    }
    return nullptr;
}

bool isInTree(const VxLyLayerFilter& start, const VxLyLayerFilter* filter) {
    return isAtOrBelow(filter, &start);
}

}  // namespace workbench
