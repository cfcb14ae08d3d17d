#pragma once

#include "workbench/editor/command_registry.h"

namespace workbench {

/// BEDIT and BCLOSE: the block editor, as BLOCKEDITOR tells it.
void addBlockEditorCommands(CommandRegistry& registry);

}  // namespace workbench
