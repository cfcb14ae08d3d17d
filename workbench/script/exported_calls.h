#pragma once

#include "workbench/script/arguments.h"
#include "workbench/script/session.h"

#include <string>

namespace workbench::script {

/// Calls a function that the dashboard module exports. The arguments of the script begin at 2. Pushes
/// its result; returns how many values. Throws ScriptError if the module isn't loaded, doesn't
/// export the function, or the workbench doesn't know its signature.
int callExport(Session& session, const std::string& name, Arguments& arguments);

/// Calls `VxDaNotifyDashboard`.
int callNotify(Session& session, int code, lua_State* lua);

/// Takes the script's listeners off the dashboard, if it is still loaded: they end with the script.
void removeListeners(Session& session, lua_State* lua);

}  // namespace workbench::script
