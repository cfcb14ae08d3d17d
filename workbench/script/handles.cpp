#include "workbench/script/handles.h"

#include "workbench/base/text.h"
#include "workbench/script/lua_calls.h"
#include "workbench/script/script_error.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/windows/window_system.h"

#include <lua.hpp>

#include <array>
#include <new>

namespace workbench::script {

namespace {

struct Handle {
    std::string name;
    int number;  // from 1
};

struct KindWords {
    const char* type;    // of the userdata
    const char* prefix;  // of its methods in errors
    const char* word;
    const char* one;  // the word with its article
};
constexpr std::array<KindWords, 3> kKinds{{
    {"workbench.item", "item:", "item", "an item"},
    {"workbench.panel", "panel:", "panel", "a panel"},
    {"workbench.control", "control:", "control", "a control"},
}};

const KindWords& wordsOf(HandleKind kind) {
    return kKinds[static_cast<std::size_t>(kind)];
}

int endHandle(lua_State* lua) {
    static_cast<Handle*>(lua_touserdata(lua, 1))->~Handle();
    return 0;
}

Handle* findHandle(const Arguments& arguments, HandleKind kind) {
    const int index = arguments.index(1) - 1;
    return static_cast<Handle*>(luaL_testudata(arguments.lua(), index, wordsOf(kind).type));
}

const Handle& handleOf(const Arguments& arguments, HandleKind kind) {
    const Handle* handle = findHandle(arguments, kind);
    if (handle == nullptr) {
        throw ScriptError(std::string("call it as a method of ") + wordsOf(kind).one);
    }
    return *handle;
}

[[noreturn]] void refuseGone(HandleKind kind, const Handle& handle) {
    throw ScriptError(std::string("the ") + wordsOf(kind).word + " \"" + handle.name +
                      "\" is gone");
}

template <class Things>
auto& pick(const Things& things, HandleKind kind, const Handle& handle) {
    const auto index = static_cast<std::size_t>(handle.number - 1);
    if (index >= things.size())
        refuseGone(kind, handle);
    return *things[index];
}

void addKind(lua_State* lua, Session& session, HandleKind kind, const std::vector<Call>& methods) {
    luaL_newmetatable(lua, wordsOf(kind).type);
    lua_newtable(lua);
    addCalls(lua, session, methods, wordsOf(kind).prefix, true);
    refuseUnknownNames(lua, wordsOf(kind).prefix);
    lua_setfield(lua, -2, "__index");
    lua_pushcfunction(lua, endHandle);
    lua_setfield(lua, -2, "__gc");
    lua_pop(lua, 1);
}

}  // namespace

void pushHandle(lua_State* lua, HandleKind kind, const std::string& name, int number) {
    void* memory = lua_newuserdatauv(lua, sizeof(Handle), 0);
    new (memory) Handle{name, number};
    luaL_setmetatable(lua, wordsOf(kind).type);
}

CQrUiToolPanelItem& itemOf(Session& session, const Arguments& arguments) {
    const Handle& handle = handleOf(arguments, HandleKind::Item);
    return pick(findItems(session.workbench().windows(), toWide(handle.name)), HandleKind::Item,
                handle);
}

CQrUiPanel& panelOf(Session& session, const Arguments& arguments) {
    const Handle& handle = handleOf(arguments, HandleKind::Panel);
    return pick(findPanels(session.workbench().windows(), toWide(handle.name)), HandleKind::Panel,
                handle);
}

HWND controlOf(Session& session, const Arguments& arguments) {
    const Handle& handle = handleOf(arguments, HandleKind::Control);
    const HWND window = session.workbench().windows().findByName(handle.name, handle.number - 1);
    if (window == nullptr)
        refuseGone(HandleKind::Control, handle);
    return window;
}

std::string wordsOf(const Arguments& arguments) {
    for (const HandleKind kind : {HandleKind::Item, HandleKind::Panel, HandleKind::Control}) {
        if (const Handle* handle = findHandle(arguments, kind)) {
            return std::string(wordsOf(kind).word) + " " + handle->name;
        }
    }
    return {};
}

void addHandleKinds(lua_State* lua, Session& session) {
    addKind(lua, session, HandleKind::Item, itemMethods());
    addKind(lua, session, HandleKind::Panel, panelMethods());
    addKind(lua, session, HandleKind::Control, controlMethods());
}

}  // namespace workbench::script
