#pragma once

#include "workbench/adapters/opening.h"
#include "workbench/drawing/records/background.h"

namespace workbench {

/// A background, opened by a module.
class OpenBackground final : public OpenedRecord<VxDbBackground, drawing::Background> {
public:
    using OpenedRecord::OpenedRecord;

    // VxDbBackground:
    int type() const override;
};

}  // namespace workbench
