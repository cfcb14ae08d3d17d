#pragma once

#include "workbench/editor/command_registry.h"

namespace workbench {

/// LINE and CIRCLE, which add to the drawing.
void addDrawCommands(CommandRegistry& registry);

}  // namespace workbench
