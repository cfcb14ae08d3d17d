#include "workbench/adapters/layer_filter_manager.h"

#include "workbench/adapters/host_values.h"
#include "workbench/adapters/layer_filter_data.h"
#include "workbench/core/host_call.h"

namespace workbench {

namespace {

using drawing::LayerFilters;
using drawing::Status;

drawing::ObjectId filtersOf(const drawing::Database& database) {
    return database.first(drawing::RecordKind::LayerFilters);
}

/// What keeps a tree from being a drawing's; `Ok` for nothing.
Status problemOf(const LayerFilters& filters) {
    if (filters.root.kind != drawing::FilterKind::All)
        return Status::WrongKind;
    switch (drawing::nameProblemOf(filters.root)) {
    case drawing::FilterNames::Empty:
        return Status::InvalidName;
    case drawing::FilterNames::Twice:
        return Status::DuplicateName;
    case drawing::FilterNames::Good:
        break;
    }
    return Status::Ok;
}

}  // namespace

Zorq::ErrorStatus LayerFilterManager::getFilters(VxLyLayerFilter*& root,
                                                 VxLyLayerFilter*& current) {
    HostCall call("VxLyLayerFilterManager::getFilters");
    root = nullptr;
    current = nullptr;
    const drawing::Database& database = m_objects.database();
    const auto* filters = database.look<LayerFilters>(filtersOf(database));
    if (call.failed() || filters == nullptr)
        return call.returns(call.status(toHostStatus(Status::UnknownId)));
    root = makeFilterObjects(filters->root).release();
    current = findFilterObject(*root, filters->current);
    return call.returns(Zorq::eOk);
}

Zorq::ErrorStatus LayerFilterManager::setFilters(const VxLyLayerFilter* root,
                                                 const VxLyLayerFilter* current) {
    HostCall call("VxLyLayerFilterManager::setFilters", {root, current});
    if (call.failed() || root == nullptr)
        return call.returns(call.status(toHostStatus(Status::UnknownId)));
    return call.returns(toHostStatus(write(*root, current)));
}

Status LayerFilterManager::write(const VxLyLayerFilter& root, const VxLyLayerFilter* current) {
    LayerFilters changed;
    changed.root = filterOfObjects(root);
    changed.current =
        isInTree(root, current) ? VxLyLayerFilterData::of(*current).filter.name : changed.root.name;
    const Status problem = problemOf(changed);
    if (problem != Status::Ok)
        return problem;
    return m_objects.change<LayerFilters>(
        filtersOf(m_objects.database()),
        [&changed](LayerFilters& filters) { filters = std::move(changed); });
}

}  // namespace workbench
