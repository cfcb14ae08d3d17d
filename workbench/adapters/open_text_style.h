#pragma once

#include "workbench/adapters/opening.h"
#include "workbench/drawing/records/text_style.h"

#include <hostapi/vxdb18/text_style.h>

namespace workbench {

/// A text style, opened by a module.
class OpenTextStyle final : public OpenedSymbol<VxDbTextStyleTableRecord, drawing::TextStyle> {
public:
    using OpenedSymbol::OpenedSymbol;

    // VxDbTextStyleTableRecord:
    double textSize() const override;
};

}  // namespace workbench
