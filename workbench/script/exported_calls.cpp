#include "workbench/script/exported_calls.h"

#include "workbench/base/text.h"
#include "workbench/base/turn.h"
#include "workbench/loader/module_loader.h"
#include "workbench/script/calls.h"
#include "workbench/script/lua_listener.h"
#include "workbench/script/lua_values.h"
#include "workbench/script/script_error.h"
#include "workbench/startup/open_dashboard.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/windows/window_system.h"

#include <hostapi/vxdashboard.h>
#include <hostapi/window/module.h>

#include <lua.hpp>

#include <algorithm>
#include <iterator>

namespace workbench::script {

namespace {

template <class Function>
Function find(Session& session, const char* name) {
    LibraryTable& libraries = session.workbench().modules().libraries();
    const HINSTANCE module = libraries.find(kDashboardModule);
    if (module == nullptr)
        throw ScriptError("the dashboard module is not loaded");
    void* symbol = libraries.symbol(module, name);
    if (symbol == nullptr)
        throw ScriptError("the module exports no " + std::string(name));
    return reinterpret_cast<Function>(symbol);
}

int pushInteger(lua_State* lua, int value) {
    lua_pushinteger(lua, value);
    return 1;
}

/// The window of a name: a panel's ID or a control's name.
HWND windowOf(Session& session, const std::string& name) {
    const std::vector<CQrUiPanel*> panels = findPanels(session.workbench().windows(), toWide(name));
    if (!panels.empty())
        return panels.front()->m_hWnd;
    return session.workbench().windows().findByName(name);
}

int getApiVersion(Session& session, Arguments& arguments) {
    return pushInteger(arguments.lua(), find<VxRxGetApiVersionFn>(session, "vxrxGetApiVersion")());
}

int entryPoint(Session& session, Arguments& arguments) {
    const auto function = find<VxRxEntryPointFn>(session, "vxrxEntryPoint");
    const int answer = function(arguments.int32(2), nullptr);
    session.settle();
    return pushInteger(arguments.lua(), answer);
}

/// Results: whether there is a control; its window's handle as a number, nil for none.
int getCustomControl(Session& session, Arguments& arguments) {
    const auto function = find<VxDaGetCustomControlFn>(session, "VxDaGetCustomControl");
    const std::string name = arguments.text(2);
    const auto parentName = arguments.optionalText(3);
    const HWND parent = parentName ? windowOf(session, *parentName) : nullptr;
    const HWND control = function(toWide(name).c_str(), parent);
    if (control == nullptr) {
        lua_pushnil(arguments.lua());
        return 1;
    }
    session.workbench().windows().setName(control, name);
    lua_pushinteger(arguments.lua(),
                    static_cast<lua_Integer>(reinterpret_cast<std::uintptr_t>(control)));
    return 1;
}

int notifyDashboard(Session& session, Arguments& arguments) {
    return callNotify(session, arguments.int32(2), arguments.lua());
}

int addOrRemoveReactor(Session& session, Arguments& arguments) {
    const auto function = find<VxDaAddOrRemoveReactorFn>(session, "VxDaAddOrRemoveReactor");
    LuaListener* listener = nullptr;
    if (arguments.has(2))
        listener = &LuaListener::of(session, arguments.lua(), arguments.index(2));
    const int answer = function(listener, arguments.integerOr(3, 1) != 0 ? 1 : 0);
    session.settle();
    return pushInteger(arguments.lua(), answer);
}

Value pairsOf(const VxDaPanelList& panels) {
    Value::List list;
    for (const auto& [panel, group] : panels) {
        list.push_back(Value(Value::List{toUtf8(panel), toUtf8(group)}));
    }
    return list;
}

/// Results: the answer, and the list of pairs {panel ID, menu group}.
int getVisiblePanels(Session& session, Arguments& arguments) {
    const auto function = find<VxDaGetVisiblePanelsFn>(session, "VxDaGetVisiblePanels");
    VxDaPanelList panels;
    lua_pushinteger(arguments.lua(), function(&panels));
    push(arguments.lua(), pairsOf(panels));
    return 2;
}

VxDaPanelList panelsFrom(const Value& value) {
    VxDaPanelList panels;
    if (value.isTable() && value.asTable().empty())
        return panels;
    if (!value.isList())
        throw ScriptError("argument 2 must be a list of {panel, group}");
    for (const Value& pair : value.asList()) {
        if (!pair.isList() || pair.asList().size() != 2 || !pair.asList()[0].isString() ||
            !pair.asList()[1].isString()) {
            throw ScriptError("argument 2 must be a list of {panel, group}");
        }
        panels.emplace_back(toWide(pair.asList()[0].asString()),
                            toWide(pair.asList()[1].asString()));
    }
    return panels;
}

int setVisiblePanels(Session& session, Arguments& arguments) {
    const auto function = find<VxDaSetVisiblePanelsFn>(session, "VxDaSetVisiblePanels");
    const VxDaPanelList panels = panelsFrom(arguments.value(2));
    const int answer = function(&panels);
    session.settle();
    return pushInteger(arguments.lua(), answer);
}

/// Result: the number of items built for an ID; nil if the ID is not known.
int getToolPanelItems(Session& session, Arguments& arguments) {
    const auto function = find<VxDaGetToolPanelItemsFn>(session, "VxDaGetToolPanelItems");
    const auto id = arguments.optionalText(2);
    const VxDaToolPanelItems* items = function(id ? toWide(*id).c_str() : nullptr);
    if (items == nullptr) {
        lua_pushnil(arguments.lua());
        return 1;
    }
    return pushInteger(arguments.lua(), static_cast<int>(items->size()));
}

int invalidateDashboard(Session& session, Arguments& arguments) {
    const auto function = find<VxDaInvalidateDashboardFn>(session, "VxDaInvalidateDashboard");
    return pushInteger(arguments.lua(), function());
}

int setForceUpdate(Session& session, Arguments& arguments) {
    find<SetForce3DNavUpdateFn>(session, "setForce3DNavUpdate")(arguments.truth(2));
    return 0;
}

constexpr Call kExports[] = {
    {"vxrxGetApiVersion", getApiVersion},
    {"vxrxEntryPoint", entryPoint},
    {"VxDaGetCustomControl", getCustomControl},
    {"VxDaNotifyDashboard", notifyDashboard},
    {"VxDaAddOrRemoveReactor", addOrRemoveReactor},
    {"VxDaGetVisiblePanels", getVisiblePanels},
    {"VxDaSetVisiblePanels", setVisiblePanels},
    {"VxDaGetToolPanelItems", getToolPanelItems},
    {"VxDaInvalidateDashboard", invalidateDashboard},
    {"setForce3DNavUpdate", setForceUpdate},
};

}  // namespace

int callExport(Session& session, const std::string& name, Arguments& arguments) {
    const auto found = std::find_if(std::begin(kExports), std::end(kExports),
                                    [&name](const Call& call) { return call.name == name; });
    if (found == std::end(kExports))
        throw ScriptError("the module exports no " + name);
    const Turn turn;
    return found->function(session, arguments);
}

int callNotify(Session& session, int code, lua_State* lua) {
    const Turn turn;
    const int answer = find<VxDaNotifyDashboardFn>(session, "VxDaNotifyDashboard")(code);
    session.settle();
    return pushInteger(lua, answer);
}

void removeListeners(Session& session, lua_State* lua) {
    if (!session.workbench().modules().isLoaded(kDashboardModule))
        return;
    const auto function = find<VxDaAddOrRemoveReactorFn>(session, "VxDaAddOrRemoveReactor");
    for (LuaListener* listener : LuaListener::all(lua))
        function(listener, 0);
}

}  // namespace workbench::script
