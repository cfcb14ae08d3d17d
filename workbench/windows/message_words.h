#pragma once

#include "workbench/base/value.h"

#include <hostapi/window.h>

namespace workbench {

/// A message's second argument as the journal shows it: the text behind a pointer to text, "object"
/// for another pointer (addresses differ from run to run) and nil for a null one; else the number.
Value shownLParam(UINT message, LPARAM lParam);

}  // namespace workbench
