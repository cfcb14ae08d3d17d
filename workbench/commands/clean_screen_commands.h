#pragma once

#include "workbench/commands/command_registry.h"

namespace workbench {

/// CLEANSCREENON and CLEANSCREENOFF.
void addCleanScreenCommands(CommandRegistry& registry);

}  // namespace workbench
