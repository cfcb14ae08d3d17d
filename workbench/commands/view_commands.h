#pragma once

#include "workbench/editor/command_registry.h"

namespace workbench {

/// -VIEW at the command line, and NEWVIEW and VIEW with their dialogs. A dialog is answered by a
/// table: NEWVIEW's `name` names the present view, VIEW's sets a named view current; without an
/// answer the dialog is cancelled.
void addViewCommands(CommandRegistry& registry);

}  // namespace workbench
