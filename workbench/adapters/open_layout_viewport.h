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
    Zorq::ErrorStatus freezeLayersInViewport(const VxDbObjectIdArray& layers) override;
    Zorq::ErrorStatus thawLayersInViewport(const VxDbObjectIdArray& layers) override;

private:
    drawing::Status changeFreezing(const VxDbObjectIdArray& layers, bool frozen);
    /// The status of a change of an ID's freezing: whether it may be made and names a layer.
    drawing::Status statusFor(VxDbObjectId layer) const;
};

}  // namespace workbench
