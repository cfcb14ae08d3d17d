#pragma once

#include "workbench/editor/command_registry.h"

namespace workbench {

class NavigationTool;

/// The group of the commands that start the navigation tool.
constexpr const wchar_t* kNavigationGroup = L"ZORQ_NAVIGATION";

/// Adds a command for each mode of the tool: it starts the tool and waits until Enter or Esc stops
/// it. The tool must outlive the group.
void addNavigationCommands(CommandRegistry& registry, NavigationTool& tool);

}  // namespace workbench
