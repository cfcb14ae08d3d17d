#include "workbench/commands/variable_commands.h"

#include "workbench/base/text.h"
#include "workbench/commands/answers.h"
#include "workbench/commands/complaints.h"
#include "workbench/editor/editor.h"
#include "workbench/editor/system_variables.h"

#include <optional>

namespace workbench {

namespace {

constexpr const wchar_t* kSetVariable = L"SETVAR";

/// Commands of their own that ask for the value of one variable each.
constexpr const wchar_t* kNamedAfterVariable[] = {L"DEFAULTLIGHTING", L"LIGHTGLYPHDISPLAY",
                                                  L"SKYSTATUS", L"SUNSTATUS"};

CommandDefinition define(const wchar_t* name, const VariableDefinition* variable) {
    CommandDefinition definition;
    definition.group = CommandRegistry::kHostGroup;
    definition.globalName = name;
    definition.localName = name;
    definition.transparent = true;
    definition.make = [variable] { return std::make_unique<SetVariableCommand>(variable); };
    return definition;
}

std::optional<Value> parseValue(VariableType type, std::wstring_view text) {
    if (type == VariableType::String)
        return Value(text == L"." ? std::string() : toUtf8(text));
    const std::optional<double> number = parseNumber(text);
    return number ? std::optional<Value>(*number) : std::nullopt;
}

/// What a value must be, as the end of a sentence.
std::wstring wantedValue(const VariableDefinition& variable) {
    if (variable.type == VariableType::String)
        return L".";
    if (!variable.range)
        return L": enter a number.";
    return L": enter a number from " + showValue(Value(variable.range->least)) + L" to " +
           showValue(Value(variable.range->most)) + L".";
}

}  // namespace

CommandState SetVariableCommand::start(const CommandScope& scope) {
    return m_variable == nullptr ? CommandState::Waiting : askForValue(scope);
}

CommandState SetVariableCommand::feed(const CommandScope& scope, std::wstring_view answer) {
    if (m_variable == nullptr)
        return choose(scope, answer);
    if (answer.empty())
        return CommandState::Ended;
    const std::optional<Value> value = parseValue(m_variable->type, answer);
    const bool written =
        value && scope.editor.variables().write(*m_variable, *value, VariableWriter::Program);
    return written ? CommandState::Ended
                   : askAgain(scope, inQuotes(answer) + L" is no value of " + m_variable->name +
                                         wantedValue(*m_variable));
}

CommandState SetVariableCommand::choose(const CommandScope& scope, std::wstring_view name) {
    if (name.empty())
        return CommandState::Ended;
    m_variable = findVariable(name);
    if (m_variable == nullptr)
        return askAgain(scope, L"There is no variable " + inQuotes(name) + L".");
    return askForValue(scope);
}

CommandState SetVariableCommand::askForValue(const CommandScope& scope) {
    const Value present = scope.editor.variables().read(*m_variable);
    if (present.isNil())
        return failBecause(scope, std::wstring(m_variable->name) + L" has no value now.");
    m_present = showValue(present);
    // A variable that only the host writes is shown, not asked for.
    return m_variable->readOnly ? CommandState::Ended : CommandState::Waiting;
}

std::wstring SetVariableCommand::prompt() const {
    if (m_variable == nullptr)
        return L"Variable name:";
    return std::wstring(L"New value for ") + m_variable->name + L" <" + m_present + L">:";
}

bool SetVariableCommand::takesBlanks() const {
    return m_variable != nullptr && m_variable->type == VariableType::String;
}

std::shared_ptr<const CommandDefinition> defineVariableCommand(std::wstring_view name) {
    const VariableDefinition* variable = findVariable(name);
    if (variable == nullptr)
        return nullptr;
    return std::make_shared<const CommandDefinition>(define(kSetVariable, variable));
}

void addVariableCommands(CommandRegistry& registry) {
    registry.add(define(kSetVariable, nullptr));
    for (const wchar_t* name : kNamedAfterVariable)
        registry.add(define(name, findVariable(name)));
    registry.setFallback(defineVariableCommand);
}

}  // namespace workbench
