#pragma once

#include "workbench/editor/command_registry.h"

namespace workbench {

/// CLEANSCREENON and CLEANSCREENOFF.
void addCleanScreenCommands(CommandRegistry& registry);

}  // namespace workbench
