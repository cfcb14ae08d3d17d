#pragma once

#include "workbench/core/journal.h"

#include <string>
#include <string_view>
#include <vector>

namespace support {

/// A host call as one line, `Name(argument, ...)`: texts stand in quotes, "object" and "null" tell
/// whether there is one, numbers and truths are as they are.
std::string callLine(const workbench::JournalRecord& call);

/// The host calls among the records as lines, in order.
std::vector<std::string> callLines(const std::vector<workbench::JournalRecord>& records);

/// Of these only the calls whose name, the text before the arguments, is one of the wanted ones.
std::vector<std::string> callLines(const std::vector<workbench::JournalRecord>& records,
                                   const std::vector<std::string_view>& wanted);

/// The messages of a number that a named window got, in order, as `number(wParam, lParam)`; the
/// values are shown as those of calls are.
std::vector<std::string> messageLines(const std::vector<workbench::JournalRecord>& records,
                                      std::string_view window, int number);

}  // namespace support
