#pragma once

#include "workbench/editor/command_registry.h"

namespace workbench {

/// -LAYER, which asks at the command line for what is to become of the layers.
void addLayerCommands(CommandRegistry& registry);

}  // namespace workbench
