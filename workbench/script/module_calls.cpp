#include "workbench/base/text.h"
#include "workbench/base/turn.h"
#include "workbench/loader/module_loader.h"
#include "workbench/script/calls.h"
#include "workbench/script/exported_calls.h"
#include "workbench/script/script_error.h"
#include "workbench/startup/open_dashboard.h"

#include <lua.hpp>

namespace workbench::script {

namespace {

int env(Session& session, Arguments& arguments) {
    const std::string name = arguments.text(1);
    if (!session.workbench().modules().environment().set(name, arguments.optionalText(2))) {
        throw ScriptError("\"" + name + "\" can't be the name of a variable");
    }
    return 0;
}

/// What loading or unloading answered; a failure is the script's.
int finish(Session& session, Arguments& arguments, bool done) {
    if (!done)
        throw ScriptError(session.workbench().modules().failureText());
    session.settle();
    lua_pushboolean(arguments.lua(), 1);
    return 1;
}

int load(Session& session, Arguments& arguments) {
    return finish(session, arguments, session.workbench().modules().loadModule(kDashboardModule));
}

int unload(Session& session, Arguments& arguments) {
    if (Turn::isUnderWay())
        throw ScriptError("the module can't be unloaded from inside one of its calls");
    return finish(session, arguments, session.workbench().modules().unloadModule(kDashboardModule));
}

int exportCall(Session& session, Arguments& arguments) {
    return callExport(session, arguments.text(1), arguments);
}

int notify(Session& session, Arguments& arguments) {
    return callNotify(session, arguments.int32(1), arguments.lua());
}

}  // namespace

const std::vector<Call>& moduleCalls() {
    static const std::vector<Call> calls{
        {"env", env, CallKind::Acts},       {"export", exportCall, CallKind::Acts},
        {"load", load, CallKind::Acts},     {"notify", notify, CallKind::Acts},
        {"unload", unload, CallKind::Acts},
    };
    return calls;
}

}  // namespace workbench::script
