#pragma once

#include "workbench/adapters/opening.h"

#include <hostapi/vxdb18/layer.h>

namespace workbench {

/// The table of the layers, opened by a module.
class OpenLayerTable final : public Opening<VxDbLayerTable> {
public:
    using Opening::Opening;

    // VxDbLayerTable:
    Zorq::ErrorStatus newIterator(VxDbLayerTableIterator*& iterator, bool atStart,
                                  bool skipErased) const override;
    bool hasUnreconciledLayers() const override;
};

}  // namespace workbench
