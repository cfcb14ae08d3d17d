#pragma once

#include "workbench/core/journal.h"

#include <string>

namespace workbench {

/// A record of the journal as one line for people: time, kind, what happened to what.
std::string describeStep(const JournalRecord& record);
/// The same without time and kind.
std::string describeEvent(const JournalRecord& record);

}  // namespace workbench
