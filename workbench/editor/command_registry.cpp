#include "workbench/editor/command_registry.h"

#include "workbench/base/text.h"

#include <algorithm>

namespace workbench {

bool CommandRegistry::add(CommandDefinition command) {
    const bool taken =
        std::any_of(m_commands.begin(), m_commands.end(), [&command](const auto& has) {
            return equalNoCase(has->group, command.group) &&
                   equalNoCase(has->globalName, command.globalName);
        });
    if (taken)
        return false;
    command.globalName = toUpper(command.globalName);
    m_commands.push_back(std::make_shared<const CommandDefinition>(std::move(command)));
    return true;
}

bool CommandRegistry::removeGroup(std::wstring_view group) {
    return std::erase_if(m_commands, [group](const auto& command) {
               return equalNoCase(command->group, group);
           }) > 0;
}

std::shared_ptr<const CommandDefinition> CommandRegistry::find(std::wstring_view name,
                                                               CommandNames names) const {
    const auto found =
        std::find_if(m_commands.rbegin(), m_commands.rend(), [name, names](const auto& command) {
            return equalNoCase(command->globalName, name) ||
                   (names == CommandNames::Any && equalNoCase(command->localName, name));
        });
    if (found != m_commands.rend())
        return *found;
    return m_fallback ? m_fallback(name) : nullptr;
}

}  // namespace workbench
