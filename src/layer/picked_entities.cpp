#include "layer/picked_entities.h"

#include <hostapi/zorq/selection.h>

namespace {

VxDbObjectIdArray idsOf(const VxEdName& set) {
    VxDbObjectIdArray ids;
    std::int32_t length = 0;
    vxedSSLength(set, &length);
    for (std::int32_t i = 0; i < length; ++i) {
        VxEdName entity;
        VxDbObjectId id;
        if (vxedSSName(set, i, entity) == kRtNorm && vxdbGetObjectId(id, entity) == Zorq::eOk)
            ids.push_back(id);
    }
    return ids;
}

}  // namespace

std::optional<VxDbObjectIdArray> pickEntities() {
    VxEdName set;
    std::optional<VxDbObjectIdArray> ids;
    if (vxedSSGet(nullptr, nullptr, nullptr, nullptr, set) == kRtNorm)
        ids = idsOf(set);
    vxedSSFree(set);
    return ids;
}
