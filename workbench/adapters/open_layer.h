#pragma once

#include "workbench/adapters/opening.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/drawing/records/layer_filters.h"

#include <hostapi/vxdb18/layer.h>

namespace workbench {

/// A layer, opened by a module.
class OpenLayer final : public OpenedSymbol<VxDbLayerTableRecord, drawing::Layer> {
public:
    using OpenedSymbol::OpenedSymbol;

    // VxDbLayerTableRecord:
    bool isOff() const override;
    void setIsOff(bool off) override;
    bool isFrozen() const override;
    Zorq::ErrorStatus setIsFrozen(bool frozen) override;
    bool isLocked() const override;
    void setIsLocked(bool locked) override;

    /// Whether a filter shows the layer.
    bool isShownBy(const drawing::LayerFilter& filter) const;

private:
    bool isCurrent() const;
};

}  // namespace workbench
