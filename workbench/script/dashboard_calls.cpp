#include "workbench/base/text.h"
#include "workbench/script/calls.h"
#include "workbench/script/handles.h"
#include "workbench/script/script_error.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/windows/window_system.h"
#include "workbench/windows/window_tree_text.h"

#include <lua.hpp>

namespace workbench::script {

namespace {

int numberArgument(const Arguments& arguments) {
    const std::int64_t number = arguments.integerOr(2, 1);
    if (number < 1 || number > 1'000'000)
        throw ScriptError("argument 2 must be 1 or more");
    return static_cast<int>(number);
}

int pushHandleIf(bool exists, HandleKind kind, const Arguments& arguments) {
    if (exists) {
        pushHandle(arguments.lua(), kind, arguments.text(1), numberArgument(arguments));
    } else {
        lua_pushnil(arguments.lua());
    }
    return 1;
}

int item(Session& session, Arguments& arguments) {
    const auto number = static_cast<std::size_t>(numberArgument(arguments));
    return pushHandleIf(
        findItems(session.workbench().windows(), toWide(arguments.text(1))).size() >= number,
        HandleKind::Item, arguments);
}

int panel(Session& session, Arguments& arguments) {
    const auto number = static_cast<std::size_t>(numberArgument(arguments));
    return pushHandleIf(
        findPanels(session.workbench().windows(), toWide(arguments.text(1))).size() >= number,
        HandleKind::Panel, arguments);
}

int control(Session& session, Arguments& arguments) {
    const HWND window =
        session.workbench().windows().findByName(arguments.text(1), numberArgument(arguments) - 1);
    return pushHandleIf(window != nullptr, HandleKind::Control, arguments);
}

int tree(Session& session, Arguments& arguments) {
    const WindowSystem& windows = session.workbench().windows();
    lua_pushstring(arguments.lua(), treeText(windows, windows.focus()).c_str());
    return 1;
}

}  // namespace

const std::vector<Call>& dashboardCalls() {
    static const std::vector<Call> calls{
        {"control", control},
        {"item", item},
        {"panel", panel},
        {"tree", tree},
    };
    return calls;
}

}  // namespace workbench::script
