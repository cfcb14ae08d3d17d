#include "workbench/script/lua_listener.h"

#include "workbench/script/script_error.h"
#include "workbench/script/session.h"

#include <lua.hpp>

#include <new>

namespace workbench::script {

namespace {

constexpr const char* kListeners = "workbench.listeners";  // registry table: table to listener

}  // namespace

LuaListener& LuaListener::of(Session& session, lua_State* lua, int index) {
    if (!lua_istable(lua, index))
        throw ScriptError("a listener must be a table of functions");
    luaL_getsubtable(lua, LUA_REGISTRYINDEX, kListeners);
    lua_pushvalue(lua, index);
    lua_rawget(lua, -2);
    if (auto* known = static_cast<LuaListener*>(lua_touserdata(lua, -1))) {
        lua_pop(lua, 2);
        return *known;
    }
    lua_pop(lua, 1);
    lua_pushvalue(lua, index);
    const int reference = luaL_ref(lua, LUA_REGISTRYINDEX);
    lua_pushvalue(lua, index);
    void* memory = lua_newuserdatauv(lua, sizeof(LuaListener), 0);
    auto* listener = new (memory) LuaListener(session, lua, reference);
    lua_rawset(lua, -3);
    lua_pop(lua, 1);
    return *listener;
}

std::vector<LuaListener*> LuaListener::all(lua_State* lua) {
    std::vector<LuaListener*> listeners;
    luaL_getsubtable(lua, LUA_REGISTRYINDEX, kListeners);
    lua_pushnil(lua);
    while (lua_next(lua, -2) != 0) {
        listeners.push_back(static_cast<LuaListener*>(lua_touserdata(lua, -1)));
        lua_pop(lua, 1);
    }
    lua_pop(lua, 1);
    return listeners;
}

bool LuaListener::pushFunction(const char* name) {
    lua_rawgeti(m_lua, LUA_REGISTRYINDEX, m_table);
    lua_getfield(m_lua, -1, name);
    lua_remove(m_lua, -2);
    if (lua_isfunction(m_lua, -1))
        return true;
    lua_pop(m_lua, 1);
    return false;
}

void LuaListener::call(const char* name) {
    if (pushFunction(name))
        run(0);
}

void LuaListener::run(int arguments) {
    if (lua_pcall(m_lua, arguments, 0, 0) == LUA_OK)
        return;
    m_session.noteListenerError(luaL_tolstring(m_lua, -1, nullptr));
    lua_pop(m_lua, 2);
}

void LuaListener::visibilityChanged(BOOL visible) {
    if (!pushFunction("visibilityChanged"))
        return;
    lua_pushinteger(m_lua, visible);
    run(1);
}

}  // namespace workbench::script
