#pragma once

#include "workbench/adapters/opening.h"
#include "workbench/drawing/records/viewport.h"

namespace workbench {

/// A viewport of a layout, opened by a module.
class OpenLayoutViewport final : public OpenedRecord<VxDbViewport, drawing::Viewport> {
public:
    using OpenedRecord::OpenedRecord;

    // VxDbViewport:
    bool isLocked() const override;
    VxDbObjectId background() const override;
    VxDbObjectId sunId() const override;
};

}  // namespace workbench
