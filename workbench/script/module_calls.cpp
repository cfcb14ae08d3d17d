#include "workbench/base/text.h"
#include "workbench/loader/module_loader.h"
#include "workbench/script/calls.h"
#include "workbench/script/exported_calls.h"
#include "workbench/script/script_error.h"

namespace workbench::script {

namespace {

constexpr const wchar_t* kModule = L"VxDashboard.qlx";

int env(Session& session, Arguments& arguments) {
    const std::string name = arguments.text(1);
    if (!session.workbench().modules().environment().set(name, arguments.optionalText(2))) {
        throw ScriptError("\"" + name + "\" can't be the name of a variable");
    }
    return 0;
}

int load(Session& session, Arguments& /*arguments*/) {
    ModuleLoader& modules = session.workbench().modules();
    if (!modules.loadModule(kModule))
        throw ScriptError(modules.failureText());
    session.settle();
    return 0;
}

int unload(Session& session, Arguments& /*arguments*/) {
    ModuleLoader& modules = session.workbench().modules();
    if (!modules.unloadModule(kModule))
        throw ScriptError(modules.failureText());
    session.settle();
    return 0;
}

int exportCall(Session& session, Arguments& arguments) {
    return callExport(session, arguments.text(1), arguments);
}

int notify(Session& session, Arguments& arguments) {
    return callNotify(session, static_cast<int>(arguments.integer(1)), arguments.lua());
}

}  // namespace

const std::vector<Call>& moduleCalls() {
    static const std::vector<Call> calls{
        {"env", env},       {"export", exportCall}, {"load", load},
        {"notify", notify}, {"unload", unload},
    };
    return calls;
}

}  // namespace workbench::script
