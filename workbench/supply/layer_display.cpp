#include "workbench/adapters/host_values.h"
#include "workbench/core/host_call.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"

#include <hostapi/zorq/layers.h>

#include <string>
#include <vector>

namespace {

using workbench::HostCall;

workbench::Editor& editor() {
    return workbench::Workbench::current().editor();
}

/// The names of layers of a document; other IDs have none.
std::vector<std::string> namesOf(const workbench::Document& document,
                                 const VxDbObjectIdArray& layers) {
    std::vector<std::string> names;
    for (const VxDbObjectId id : layers) {
        const auto* object = document.data().peek(workbench::fromHostId(id));
        if (object != nullptr && object->kind() == workbench::drawing::RecordKind::Layer)
            names.push_back(object->name());
    }
    return names;
}

}  // namespace

bool vxedGetInvertLayerFilterFlag() {
    HostCall call("vxedGetInvertLayerFilterFlag");
    return call.returns(!call.failed() && editor().layerDisplay().inverted);
}

void vxedSetInvertLayerFilterFlag(bool invert) {
    HostCall call("vxedSetInvertLayerFilterFlag", {invert});
    if (!call.failed())
        editor().layerDisplay().inverted = invert;
}

void vxedSetUseCurrentFilterFlag(int use) {
    HostCall call("vxedSetUseCurrentFilterFlag", {use});
    if (!call.failed())
        editor().layerDisplay().byFilter = use != 0;
}

void vxedRegenLayers(const VxDbObjectIdArray& layers, int pending) {
    HostCall call("vxedRegenLayers", {layers.size(), pending});
    workbench::Document* document = editor().documents().current();
    if (call.failed() || document == nullptr)
        return;
    // With a regeneration that stands due anyway all layers are drawn.
    document->regeneration().afterLayers(
        editor(), *document,
        pending != 0 ? std::vector<std::string>() : namesOf(*document, layers));
}

int vxedRegenPending() {
    HostCall call("vxedRegenPending");
    workbench::Document* document = editor().documents().current();
    const bool due = !call.failed() && document != nullptr && document->regeneration().isDue();
    return call.returns(due ? 1 : 0);
}
