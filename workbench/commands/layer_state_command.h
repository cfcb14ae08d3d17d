#pragma once

#include "workbench/editor/command_registry.h"

namespace workbench {

/// LAYERSTATE, which opens the manager of the layer states; see `LayerStateDialogs`. It ends however the
/// manager is closed, since there states may have been made, renamed and deleted.
void addLayerStateCommand(CommandRegistry& registry);

}  // namespace workbench
