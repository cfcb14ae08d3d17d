#pragma once

#include "workbench/core/journal.h"

#include <string>

namespace workbench {

/// A record of the journal as one line for people: time, what happened, to what.
std::string describeStep(const JournalRecord& record);

}  // namespace workbench
