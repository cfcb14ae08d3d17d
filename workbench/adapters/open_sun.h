#pragma once

#include "workbench/adapters/opening.h"
#include "workbench/drawing/records/sun.h"

namespace workbench {

/// A sun, opened by a module.
class OpenSun final : public OpenedRecord<VxDbSun, drawing::Sun> {
public:
    using OpenedRecord::OpenedRecord;

    // VxDbSun:
    bool skyIllumination() const override;
};

}  // namespace workbench
