#pragma once

#include "workbench/editor/command_registry.h"

#include <initializer_list>
#include <memory>
#include <string_view>

namespace workbench {

/// Adds all commands of the host.
void addHostCommands(CommandRegistry& registry);

/// How a command of the host runs.
enum class CommandTraits {
    Plain,
    Transparent,  ///< may run inside another command
    NotUndoable,  ///< its work is no step of undo
    UsesPickSet,  ///< may work on the selection that was made before it
};

/// Adds a command of the host of the class `Type`, which is made with the arguments.
template <class Type, class... Arguments>
void addHostCommand(CommandRegistry& registry, std::wstring_view name, CommandTraits traits,
                    Arguments... arguments) {
    CommandDefinition definition;
    definition.group = CommandRegistry::kHostGroup;
    definition.globalName = name;
    definition.localName = name;
    definition.transparent = traits == CommandTraits::Transparent;
    definition.undoable = traits != CommandTraits::NotUndoable;
    definition.usesPickSet = traits == CommandTraits::UsesPickSet;
    definition.make = [arguments...] { return std::make_unique<Type>(arguments...); };
    registry.add(std::move(definition));
}

}  // namespace workbench
