#pragma once

/// Registers the module's commands, if the environment enables them.
void registerCommands();
/// Removes the module's command group, whether or not commands were registered.
void removeCommands();
