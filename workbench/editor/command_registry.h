#pragma once

#include "workbench/editor/command.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace workbench {

/// A command that can be run.
struct CommandDefinition {
    using Make = std::function<std::unique_ptr<Command>()>;

    std::wstring group;
    std::wstring globalName;  ///< in upper case: the name of its events
    std::wstring localName;
    bool transparent = false;  ///< may run inside another command
    bool undoable = true;      ///< its changes are one step of undo
    bool usesPickSet =
        false;  ///< may work on the selection that was made before it, which others that
                ///< are not transparent drop
    Make make;
};

/// Which names of a command count.
enum class CommandNames { Any, Global };

/// The commands of the host and of its modules, by group. Names are taken without regard to case.
class CommandRegistry {
public:
    /// The group of the host's own commands.
    static constexpr const wchar_t* kHostGroup = L"ZORQ";

    /// Adds a command. False if its group has one of the same global name, which stays.
    bool add(CommandDefinition command);
    /// Removes a group with its commands; false if there is none. Runs of them go on.
    bool removeGroup(std::wstring_view group);

    /// Makes a command for a name that no command bears; null for none.
    using Fallback =
        std::function<std::shared_ptr<const CommandDefinition>(std::wstring_view name)>;
    void setFallback(Fallback fallback) { m_fallback = std::move(fallback); }

    /// The command of a name, of several the one that was added last; without one what the fallback
    /// makes of the name, null for none.
    std::shared_ptr<const CommandDefinition> find(std::wstring_view name, CommandNames names) const;
    /// All commands, in the order in which they were added.
    const std::vector<std::shared_ptr<const CommandDefinition>>& all() const { return m_commands; }

private:
    std::vector<std::shared_ptr<const CommandDefinition>> m_commands;
    Fallback m_fallback;  // empty: none
};

}  // namespace workbench
