#pragma once

#include "workbench/editor/command_registry.h"

namespace workbench {

/// U, UNDO with a number of steps, and REDO.
void addUndoCommands(CommandRegistry& registry);

}  // namespace workbench
