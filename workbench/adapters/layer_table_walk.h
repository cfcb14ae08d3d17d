#pragma once

#include "workbench/adapters/symbol_table_walk.h"

#include <hostapi/vxdb18/layer.h>

namespace workbench {

/// A walk over the layers.
class LayerTableWalk final : public SymbolTableWalk<VxDbLayerTableIterator> {
public:
    explicit LayerTableWalk(OpenObjects& objects)
        : SymbolTableWalk(objects, drawing::RecordKind::Layer) {}

    // VxDbLayerTableIterator:
    void setSkipReconciled(bool skip) override;

private:
    bool leavesOut(const drawing::DbObject& record) const override;

    bool m_skipReconciled = false;
};

}  // namespace workbench
