#pragma once

#include "workbench/base/value.h"

#include <string>

namespace workbench::drawing {

/// A value as JSON text, indented by two blanks; what fits on a line of 100 columns stays on one.
/// Numbers are written so that reading gives the same number again.
std::string jsonText(const Value& value);

}  // namespace workbench::drawing
