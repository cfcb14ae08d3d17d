#include "workbench/adapters/host_values.h"
#include "workbench/base/text.h"
#include "workbench/core/host_call.h"
#include "workbench/drawing/dependent_name.h"
#include "workbench/drawing/layer_state_operations.h"
#include "workbench/drawing/records/current.h"
#include "workbench/drawing/records/layer_state.h"
#include "workbench/editor/editor.h"
#include "workbench/editor/statuses.h"
#include "workbench/host/workbench.h"

#include <hostapi/vxdb18/layer_state_manager.h>

namespace {

using workbench::Document;
using workbench::HostCall;
using workbench::drawing::Database;
using workbench::drawing::ObjectId;
using workbench::drawing::RecordKind;

constexpr Zorq::ErrorStatus kNoSuchState = 22;
constexpr Zorq::ErrorStatus kNoDatabase = 374;

Document* documentOf(const VxDbDatabase* database) {
    return workbench::Workbench::current().editor().documents().find(database);
}

ObjectId findState(const Database& database, const wchar_t* name) {
    return name == nullptr ? ObjectId()
                           : database.find(RecordKind::LayerState, workbench::toUtf8(name));
}

Zorq::ErrorStatus restore(Document& document, ObjectId state, VxDbObjectId viewport, int flags) {
    using namespace workbench::drawing;
    if (!document.locks().isForWriting())
        return workbench::toHostStatus(Status::NotLocked);
    const auto unknown =
        (flags & kRestoreTurnsNewLayersOff) != 0 ? UnknownLayers::TurnOff : UnknownLayers::Keep;
    const auto look =
        (flags & kRestoreAsOverrides) != 0 ? RestoredLook::OfViewport : RestoredLook::OfLayers;
    return workbench::toHostStatus(
        restoreLayerState(document.data(), state, workbench::fromHostId(viewport), unknown, look));
}

}  // namespace

Zorq::ErrorStatus VxDbLayerStateManager::getLayerStateNames(CStringArray& names, bool withHidden,
                                                            bool withReferenced) const {
    // This host has no hidden states.
    HostCall call("VxDbLayerStateManager::getLayerStateNames", {withHidden, withReferenced});
    names.clear();
    const Document* document = documentOf(m_database);
    if (call.failed() || document == nullptr)
        return call.returns(call.status(kNoDatabase));
    for (const ObjectId id : document->data().ids(RecordKind::LayerState)) {
        const std::string name = document->data().peek(id)->name();
        if (withReferenced || !workbench::drawing::isDependentName(name))
            names.push_back(workbench::toWide(name));
    }
    return call.returns(Zorq::eOk);
}

Zorq::ErrorStatus VxDbLayerStateManager::getLastRestoredLayerState(VxString& name) const {
    HostCall call("VxDbLayerStateManager::getLastRestoredLayerState");
    const Document* document = documentOf(m_database);
    if (call.failed() || document == nullptr)
        return call.returns(call.status(kNoDatabase));
    const Database& data = document->data();
    const auto* current = data.look<workbench::drawing::Current>(data.first(RecordKind::Current));
    if (current == nullptr || data.find(RecordKind::LayerState, current->layerState).isNull())
        return call.returns(kNoSuchState);
    name = workbench::toWide(current->layerState);
    return call.returns(Zorq::eOk);
}

bool VxDbLayerStateManager::compareLayerStateToDb(const wchar_t* name,
                                                  VxDbObjectId viewport) const {
    HostCall call("VxDbLayerStateManager::compareLayerStateToDb", {name, viewport.number});
    const Document* document = documentOf(m_database);
    if (call.failed() || document == nullptr)
        return call.returns(false);
    const Database& data = document->data();
    return call.returns(workbench::drawing::matchesLayerState(data, findState(data, name),
                                                              workbench::fromHostId(viewport)));
}

Zorq::ErrorStatus VxDbLayerStateManager::restoreLayerState(const wchar_t* name,
                                                           VxDbObjectId viewport, int flags,
                                                           const int* mask) {
    HostCall call("VxDbLayerStateManager::restoreLayerState", {name, viewport.number, flags, mask});
    if (call.failed())
        return call.returns(call.status(kNoSuchState));
    Document* document = documentOf(m_database);
    if (document == nullptr)
        return call.returns(kNoDatabase);
    // This host restores all properties or none.
    if (mask != nullptr)
        return call.returns(workbench::kNotApplicable);
    const ObjectId state = findState(document->data(), name);
    if (state.isNull())
        return call.returns(kNoSuchState);
    return call.returns(restore(*document, state, viewport, flags));
}
