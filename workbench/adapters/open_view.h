#pragma once

#include "workbench/adapters/opening.h"
#include "workbench/drawing/records/view.h"

namespace workbench {

/// A named view, opened by a module.
using OpenView = OpenedSymbol<VxDbViewTableRecord, drawing::View>;

}  // namespace workbench
