#pragma once

#include "workbench/commands/command_registry.h"

namespace workbench {

/// ERASE.
void addEraseCommands(CommandRegistry& registry);

}  // namespace workbench
