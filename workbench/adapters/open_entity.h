#pragma once

#include "workbench/adapters/opening.h"
#include "workbench/drawing/records/entity.h"

#include <hostapi/vxdb18/entity.h>

namespace workbench {

/// An entity, opened by a module.
class OpenEntity final : public OpenedRecord<VxDbEntity, drawing::Entity> {
public:
    using OpenedRecord::OpenedRecord;

    // VxDbEntity:
    VxDbObjectId layerId() const override;
};

}  // namespace workbench
