#pragma once

#include "workbench/core/journal.h"

#include <string>
#include <string_view>

namespace workbench {

/// Notes a text that the user sees ("balloon", "box" or "tip") with the number of the string
/// resource that it came from, if it came from one, and the name of its owner, if it has one.
void noteText(Journal& journal, std::string_view kind, const std::wstring& text,
              const std::string& owner);

}  // namespace workbench
