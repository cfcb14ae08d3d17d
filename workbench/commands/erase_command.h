#pragma once

#include "workbench/editor/command_registry.h"

namespace workbench {

/// ERASE.
void addEraseCommands(CommandRegistry& registry);

}  // namespace workbench
