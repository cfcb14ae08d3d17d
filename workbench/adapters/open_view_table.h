#pragma once

#include "workbench/adapters/opening.h"

namespace workbench {

/// The table of the named views, opened by a module.
class OpenViewTable final : public Opening<VxDbViewTable> {
public:
    using Opening::Opening;

    // VxDbViewTable:
    Zorq::ErrorStatus newIterator(VxDbViewTableIterator*& iterator, bool atStart,
                                  bool skipErased) const override;
};

}  // namespace workbench
