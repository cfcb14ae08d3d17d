#pragma once

#include "workbench/editor/command.h"

#include <string>
#include <string_view>

namespace workbench {

/// \name What a command tells its user when something is wrong
/// In one line above the command line.
/// @{

/// The answer wasn't taken: the command asks again.
CommandState askAgain(const CommandScope& scope, const std::wstring& why);
/// The command can't do what it was asked for.
CommandState failBecause(const CommandScope& scope, const std::wstring& why);
/// @}

/// A text as complaints quote it.
std::wstring inQuotes(std::wstring_view text);

}  // namespace workbench
