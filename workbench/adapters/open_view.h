#pragma once

#include "workbench/adapters/opening.h"
#include "workbench/drawing/records/view.h"

namespace workbench {

/// A named view, opened by a module.
class OpenView final : public OpenedRecord<VxDbViewTableRecord, drawing::View> {
public:
    using OpenedRecord::OpenedRecord;

    // VxDbViewTableRecord:
    Zorq::ErrorStatus getName(VxString& name) const override;
};

}  // namespace workbench
