#include "workbench/adapters/host_values.h"
#include "workbench/editor/editor.h"
#include "workbench/editor/variables/sky_status.h"
#include "workbench/host/workbench.h"
#include "workbench/modules/module_start.h"

#include <hostapi/export.h>
#include <hostapi/vxdb18/database.h>

/// The scene service: what belongs to the look of a scene and not to one drawing object.

namespace {

constexpr Zorq::ErrorStatus kNotPossible = 3;
constexpr Zorq::ErrorStatus kNoActiveSun = 600;

}  // namespace

VXDA_EXPORT int vxrxGetApiVersion() {
    return kVxRxApiVersion;
}

VXDA_EXPORT int vxrxEntryPoint(int message, void* appPacket) {
    return serviceModuleMessage(L"SceneUI_Service", message, appPacket);
}

/// The sun of the current drawing's active view. Without one, 600, or with `create` a new sun; 3
/// where none can be made.
VXDA_EXPORT Zorq::ErrorStatus getActiveSun(VxDbObjectId* id, bool create) {
    workbench::Document* const document =
        workbench::Workbench::current().editor().documents().current();
    if (document == nullptr || id == nullptr)
        return kNotPossible;
    if (workbench::activeOrOnlySun(document->data()).isNull()) {
        if (!create)
            return kNoActiveSun;
        workbench::ensureSun(document->data());
    }
    const workbench::drawing::ObjectId sun = workbench::activeOrOnlySun(document->data());
    if (sun.isNull())
        return kNotPossible;
    *id = workbench::toHostId(sun);
    return Zorq::eOk;
}
