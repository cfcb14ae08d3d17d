#include "workbench/adapters/host_values.h"
#include "workbench/core/host_call.h"
#include "workbench/drawing/records/entity.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"

#include <hostapi/zorq/selection.h>

#include <optional>

namespace {

using workbench::Document;
using workbench::Editor;
using workbench::HostCall;
using workbench::SelectionSets;
using workbench::Workbench;

Editor& editor() {
    return Workbench::current().editor();
}

/// What the user picks in the current document, as a set; nothing if that is none.
std::optional<VxEdName> pickSet() {
    Document* const document = editor().documents().current();
    if (document == nullptr)
        return {};
    const auto entities = editor().selection().ask(*document);
    if (!entities || entities->empty())
        return {};
    return editor().selectionSets().make(*entities);
}

}  // namespace

int vxedSSGet(const wchar_t* mode, const void* firstPoint, const void* secondPoint,
              const VxResultBuffer* filter, VxEdName& set) {
    HostCall call("vxedSSGet", {mode, firstPoint, secondPoint, filter});
    if (call.failed())
        return call.returns(call.status(kRtError));
    // Only the user's own pick is offered.
    if (mode != nullptr || firstPoint != nullptr || secondPoint != nullptr || filter != nullptr)
        return call.returns(kRtError);
    const std::optional<VxEdName> picked = pickSet();
    if (!picked)
        return call.returns(kRtError);
    set = *picked;
    return call.returns(kRtNorm);
}

int vxedSSLength(const VxEdName& set, std::int32_t* length) {
    HostCall call("vxedSSLength", {set.number[0]});
    if (call.failed())
        return call.returns(call.status(kRtError));
    const SelectionSets::Entities* const entities = editor().selectionSets().find(set);
    if (entities == nullptr || length == nullptr)
        return call.returns(kRtError);
    *length = static_cast<std::int32_t>(entities->size());
    return call.returns(kRtNorm);
}

int vxedSSName(const VxEdName& set, std::int32_t index, VxEdName& entity) {
    HostCall call("vxedSSName", {set.number[0], index});
    if (call.failed())
        return call.returns(call.status(kRtError));
    const SelectionSets::Entities* const entities = editor().selectionSets().find(set);
    const auto place = static_cast<std::size_t>(index);
    if (entities == nullptr || index < 0 || place >= entities->size())
        return call.returns(kRtError);
    entity = workbench::nameOfEntity((*entities)[place]);
    return call.returns(kRtNorm);
}

int vxedSSFree(const VxEdName& set) {
    HostCall call("vxedSSFree", {set.number[0]});
    if (call.failed())
        return call.returns(call.status(kRtError));
    return call.returns(editor().selectionSets().free(set) ? kRtNorm : kRtError);
}

Zorq::ErrorStatus vxdbGetObjectId(VxDbObjectId& id, const VxEdName& name) {
    HostCall call("vxdbGetObjectId", {name.number[0]});
    using workbench::drawing::Status;
    if (call.failed())
        return call.returns(call.status(workbench::toHostStatus(Status::UnknownId)));
    const workbench::drawing::ObjectId entity = workbench::entityNamed(name);
    const Document* const document = editor().documents().findBySerial(entity.database());
    if (document == nullptr || document->data().look<workbench::drawing::Entity>(entity) == nullptr)
        return call.returns(workbench::toHostStatus(Status::UnknownId));
    id = workbench::toHostId(entity);
    return call.returns(Zorq::eOk);
}
