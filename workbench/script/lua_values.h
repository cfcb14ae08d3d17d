#pragma once

#include "workbench/base/value.h"

#include <string>
#include <vector>

struct lua_State;

namespace workbench::script {

/// Pushes a plain value: nil, truth, number, text, list from index 1, table by names.
void push(lua_State* lua, const Value& value);
/// Pushes a list of texts.
void push(lua_State* lua, const std::vector<std::string>& texts);

/// The plain value at a stack index. A table whose keys are 1 to n is a list; any other must have
/// text keys. Throws ScriptError for functions, handles and tables that hold them.
Value toValue(lua_State* lua, int index);

}  // namespace workbench::script
