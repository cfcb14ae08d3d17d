#pragma once

#include "workbench/commands/command_registry.h"

namespace workbench {

/// LINE and CIRCLE, which add to the drawing.
void addDrawCommands(CommandRegistry& registry);

}  // namespace workbench
