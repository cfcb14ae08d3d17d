#pragma once

#include "workbench/editor/command_registry.h"

namespace workbench {

/// -LAYOUT, MODEL, MSPACE and PSPACE: the space in which the user works.
void addSpaceCommands(CommandRegistry& registry);

}  // namespace workbench
