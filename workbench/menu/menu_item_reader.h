#pragma once

#include "workbench/base/json_view.h"
#include "workbench/menu/menu_data.h"

namespace workbench {

/// Reads one item of a tool panel; each type takes its own keys and no others. Throws InputError.
MenuItem readMenuItem(const JsonView& view);

}  // namespace workbench
