#pragma once

#include "workbench/commands/command_registry.h"

namespace workbench {

/// U, UNDO with a number of steps, and REDO.
void addUndoCommands(CommandRegistry& registry);

}  // namespace workbench
