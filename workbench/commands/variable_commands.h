#pragma once

#include "workbench/editor/command.h"
#include "workbench/editor/command_registry.h"
#include "workbench/editor/variables/variable_definition.h"

#include <memory>
#include <string>
#include <string_view>

namespace workbench {

/// Asks for a new value of a system variable and writes it; Enter keeps the present one. An answer
/// that the variable refuses is asked for again.
class SetVariableCommand : public Command {
public:
    /// With null it asks for the variable first.
    explicit SetVariableCommand(const VariableDefinition* variable) : m_variable(variable) {}

    // Command:
    CommandState start(const CommandScope& scope) override;
    CommandState feed(const CommandScope& scope, std::wstring_view answer) override;
    std::wstring prompt() const override;
    bool takesBlanks() const override;

private:
    CommandState choose(const CommandScope& scope, std::wstring_view name);
    CommandState askForValue(const CommandScope& scope);

    const VariableDefinition* m_variable;  // not owned; null: not chosen yet
    std::wstring m_present;                // the present value, for the prompt
};

/// The command that typing a variable's name runs, SETVAR on that variable; null if there is no
/// variable of the name.
std::shared_ptr<const CommandDefinition> defineVariableCommand(std::wstring_view name);

/// Adds SETVAR, the commands that bear a variable's name, and SETVAR for any other variable's name.
void addVariableCommands(CommandRegistry& registry);

}  // namespace workbench
