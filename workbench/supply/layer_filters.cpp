#include "workbench/adapters/host_values.h"
#include "workbench/adapters/layer_filter_data.h"
#include "workbench/adapters/open_layer.h"
#include "workbench/base/text.h"
#include "workbench/core/host_call.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"

#include <hostapi/vxly.h>

#include <algorithm>
#include <new>

namespace {

using workbench::HostCall;
using workbench::drawing::FilterKind;
using workbench::drawing::LayerFilter;
using workbench::drawing::Status;
using Data = VxLyLayerFilterData;

/// Where a picture stands in the strip that every show of filters has.
int imageOf(FilterKind kind) {
    switch (kind) {
    case FilterKind::All:
    case FilterKind::Used:
        break;
    case FilterKind::Property:
        return 1;
    case FilterKind::Group:
        return 2;
    case FilterKind::Overrides:
        return 3;
    case FilterKind::Unreconciled:
        return 4;
    }
    return 0;
}

/// The status of a call that ended so, or the one that it was told to fail with.
Zorq::ErrorStatus statusOf(HostCall& call, Status status) {
    return call.returns(call.failed() ? call.status(workbench::toHostStatus(Status::UnknownId))
                                      : workbench::toHostStatus(status));
}

Status layerProblem(VxDbObjectId id) {
    const auto layer = workbench::fromHostId(id);
    const workbench::Document* document =
        workbench::Workbench::current().editor().documents().findBySerial(layer.database());
    const workbench::drawing::DbObject* object =
        document == nullptr ? nullptr : document->data().peek(layer);
    if (object == nullptr)
        return id.isNull() ? Status::NullObjectId : Status::UnknownId;
    if (object->kind() != workbench::drawing::RecordKind::Layer)
        return Status::WrongKind;
    return object->isErased() ? Status::WasErased : Status::Ok;
}

bool isEditable(const LayerFilter& filter) {
    return !filter.isGenerated();
}

}  // namespace

VxLyLayerFilter::VxLyLayerFilter() : m_data(std::make_unique<Data>()) {}

VxLyLayerFilter::~VxLyLayerFilter() {
    // Those nested in it end without a word.
    if (m_data->parent == nullptr)
        HostCall("VxLyLayerFilter::~VxLyLayerFilter");
}

void* VxLyLayerFilter::operator new(std::size_t size) noexcept {
    // Groups alone are made by modules.
    HostCall call("VxLyLayerGroup::new");
    return call.failed() ? nullptr : ::operator new(size, std::nothrow);
}

void VxLyLayerFilter::operator delete(void* room) noexcept {
    ::operator delete(room);
}

VxString VxLyLayerFilter::name() const {
    HostCall call("VxLyLayerFilter::name");
    return call.returns(call.failed() ? VxString() : workbench::toWide(m_data->filter.name));
}

Zorq::ErrorStatus VxLyLayerFilter::setName(const VxString& name) {
    HostCall call("VxLyLayerFilter::setName", {name});
    if (!call.failed() && isEditable(m_data->filter))
        m_data->filter.name = workbench::toUtf8(name);
    return statusOf(call, isEditable(m_data->filter) ? Status::Ok : Status::WrongKind);
}

bool VxLyLayerFilter::allowRename() const {
    HostCall call("VxLyLayerFilter::allowRename");
    return call.returns(!call.failed() && isEditable(m_data->filter));
}

bool VxLyLayerFilter::getImages(HIMAGELIST& list, int& normal, int& selected) const {
    HostCall call("VxLyLayerFilter::getImages");
    list = nullptr;
    normal = selected = imageOf(m_data->filter.kind);
    return call.returns(!call.failed());
}

VxLyLayerFilter* VxLyLayerFilter::parent() const {
    HostCall call("VxLyLayerFilter::parent");
    return call.returns(call.failed() ? nullptr : m_data->parent);
}

VxLyLayerFilterArray VxLyLayerFilter::nestedFilters() const {
    HostCall call("VxLyLayerFilter::nestedFilters");
    VxLyLayerFilterArray filters;
    if (!call.failed()) {
        for (const auto& nested : m_data->nested)
            filters.push_back(nested.get());
    }
    call.returns(filters.size());
    return filters;
}

Zorq::ErrorStatus VxLyLayerFilter::addNested(VxLyLayerFilter* filter) {
    HostCall call("VxLyLayerFilter::addNested", {filter});
    return statusOf(call, call.failed() ? Status::Ok : workbench::nestFilter(*this, filter));
}

Zorq::ErrorStatus VxLyLayerFilter::removeNested(VxLyLayerFilter* filter) {
    HostCall call("VxLyLayerFilter::removeNested", {filter});
    if (call.failed())
        return statusOf(call, Status::Ok);
    // Whoever asked for it has it from now on.
    const VxLyLayerFilter* taken = workbench::takeNestedFilter(*this, filter).release();
    return statusOf(call, taken == nullptr ? Status::UnknownId : Status::Ok);
}

Zorq::ErrorStatus VxLyLayerFilter::regenerateNested() {
    // What this host keeps itself is worked out whenever it is asked for.
    HostCall call("VxLyLayerFilter::regenerateNested");
    return statusOf(call, Status::Ok);
}

bool VxLyLayerFilter::dynamicallyGenerated() const {
    HostCall call("VxLyLayerFilter::dynamicallyGenerated");
    return call.returns(!call.failed() && m_data->filter.isGenerated());
}

bool VxLyLayerFilter::allowNested() const {
    HostCall call("VxLyLayerFilter::allowNested");
    return call.returns(!call.failed() && workbench::allowsNested(m_data->filter));
}

bool VxLyLayerFilter::allowDelete() const {
    HostCall call("VxLyLayerFilter::allowDelete");
    return call.returns(!call.failed() && isEditable(m_data->filter));
}

bool VxLyLayerFilter::isIdFilter() const {
    HostCall call("VxLyLayerFilter::isIdFilter");
    return call.returns(!call.failed() && m_data->filter.kind == FilterKind::Group);
}

bool VxLyLayerFilter::contains(const VxDbLayerTableRecord* layer) const {
    HostCall call("VxLyLayerFilter::contains", {layer});
    const auto* opened = dynamic_cast<const workbench::OpenLayer*>(layer);
    return call.returns(!call.failed() && opened != nullptr && opened->isShownBy(m_data->filter));
}

VxLyLayerGroup::VxLyLayerGroup() {
    Data::of(*this).filter.kind = FilterKind::Group;
}

Zorq::ErrorStatus VxLyLayerGroup::addLayerId(VxDbObjectId layer) {
    HostCall call("VxLyLayerGroup::addLayerId", {layer.number});
    const Status problem = call.failed() ? Status::Ok : layerProblem(layer);
    if (call.failed() || problem != Status::Ok)
        return statusOf(call, problem);
    auto& layers = Data::of(*this).filter.layers;
    const workbench::drawing::Ref<workbench::drawing::RecordKind::Layer> added =
        workbench::fromHostId(layer);
    if (std::find(layers.begin(), layers.end(), added) == layers.end())
        layers.push_back(added);
    return statusOf(call, Status::Ok);
}

Zorq::ErrorStatus VxLyLayerGroup::removeLayerId(VxDbObjectId layer) {
    HostCall call("VxLyLayerGroup::removeLayerId", {layer.number});
    if (call.failed())
        return statusOf(call, Status::Ok);
    const auto id = workbench::fromHostId(layer);
    const auto removed = std::erase_if(Data::of(*this).filter.layers,
                                       [id](const auto& one) { return one.id == id; });
    return statusOf(call, removed == 0 ? Status::UnknownId : Status::Ok);
}

VxDbObjectIdArray VxLyLayerGroup::layerIds() const {
    HostCall call("VxLyLayerGroup::layerIds");
    VxDbObjectIdArray ids;
    if (!call.failed()) {
        for (const auto& layer : Data::of(*this).filter.layers)
            ids.push_back(workbench::toHostId(layer));
    }
    call.returns(ids.size());
    return ids;
}

VxLyLayerFilterManager* vxlyGetLayerFilterManager(VxDbDatabase* database) {
    HostCall call("vxlyGetLayerFilterManager", {database});
    const workbench::Document* document =
        workbench::Workbench::current().editor().documents().find(database);
    VxLyLayerFilterManager* manager =
        call.failed() || document == nullptr ? nullptr : &document->hostDatabase().filters();
    return call.returns(manager);
}
