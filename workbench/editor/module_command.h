#pragma once

#include "workbench/editor/command_registry.h"

#include <hostapi/zorq/commands.h>

namespace workbench {

/// A module's command: its function is its whole run. `flags` are the host's, such as
/// `kCommandTransparent`.
CommandDefinition defineModuleCommand(const wchar_t* group, const wchar_t* globalName,
                                      const wchar_t* localName, int flags,
                                      VxEdCommandStack::CommandFunction function);

}  // namespace workbench
