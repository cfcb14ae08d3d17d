#pragma once

#include "workbench/adapters/opening.h"

#include <hostapi/vxdb18/text_style.h>

namespace workbench {

/// The table of the text styles, opened by a module.
class OpenTextStyleTable final : public Opening<VxDbTextStyleTable> {
public:
    using Opening::Opening;

    // VxDbTextStyleTable:
    Zorq::ErrorStatus newIterator(VxDbSymbolTableIterator*& iterator, bool atStart,
                                  bool skipErased) const override;
};

}  // namespace workbench
