#pragma once

#include "workbench/editor/command_registry.h"

namespace workbench {

/// Commands whose whole work is to open a dialog.
void addDialogCommands(CommandRegistry& registry);

}  // namespace workbench
