#pragma once

#include "workbench/core/host_call.h"
#include "workbench/editor/variables/variable_definition.h"

#include <hostapi/zorq/variables.h>

namespace workbench {

/// Fills a module's result buffer with a variable's value; a string is allocated for the module,
/// which frees it. The rest of the value's word stays as it is. False for nil.
bool fillResultBuffer(VxResultBuffer& buffer, VariableType type, const Value& value);
/// The value in a module's result buffer; nil for an unknown type or a missing string.
Value valueOf(const VxResultBuffer& buffer);
/// A value as an argument of a host call. Good as long as the value is.
CallValue shownValue(const Value& value);

}  // namespace workbench
