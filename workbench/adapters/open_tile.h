#pragma once

#include "workbench/adapters/opening.h"
#include "workbench/drawing/records/viewport.h"

namespace workbench {

/// A tile of model space, opened by a module.
class OpenTile final : public OpenedRecord<VxDbViewportTableRecord, drawing::Viewport> {
public:
    using OpenedRecord::OpenedRecord;

    // VxDbViewportTableRecord:
    VxDbObjectId background() const override;
    VxDbObjectId sunId() const override;
};

}  // namespace workbench
