#pragma once

#include "workbench/editor/command.h"

namespace workbench {

/// A command that only waits: for Enter, for Esc, or for being ended from outside. Scripts use it
/// to have a command active.
class ScriptedCommand final : public Command {
public:
    // Command:
    CommandState start(const CommandScope& scope) override;
    CommandState feed(const CommandScope& scope, std::wstring_view answer) override;
    std::wstring prompt() const override { return L"Enter to end:"; }
};

}  // namespace workbench
