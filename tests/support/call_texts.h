#pragma once

#include "workbench/core/journal.h"

#include <string>
#include <string_view>
#include <vector>

namespace support {

/// The host calls of some names, in order, with their arguments as the journal shows them:
/// `vxedSetVar("STEPSIZE",0.5)`. An object shows as "object", no object as null.
std::vector<std::string> callTexts(const std::vector<workbench::JournalRecord>& records,
                                   const std::vector<std::string_view>& names);

}  // namespace support
