#pragma once

#include "workbench/script/calls.h"

struct lua_State;

namespace workbench::script {

/// Puts calls into the table on top of the stack. `prefix` names them in errors ("wb.", "item:");
/// methods have their handle in front of the arguments.
void addCalls(lua_State* lua, Session& session, const std::vector<Call>& calls, const char* prefix,
              bool methods);
/// Makes the reading of an unknown name in the table on top of the stack an error.
void refuseUnknownNames(lua_State* lua, const char* prefix);

}  // namespace workbench::script
