#pragma once

#include "workbench/adapters/symbol_table_walk.h"

namespace workbench {

/// A walk over the named views.
class ViewTableWalk final : public SymbolTableWalk<VxDbViewTableIterator> {
public:
    explicit ViewTableWalk(OpenObjects& objects)
        : SymbolTableWalk(objects, drawing::RecordKind::View) {}

    // VxDbViewTableIterator:
    Zorq::ErrorStatus getRecord(VxDbViewTableRecord*& record, VxDbOpenMode mode) const override;
};

}  // namespace workbench
