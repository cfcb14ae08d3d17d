#include "workbench/script/lua_calls.h"

#include "workbench/script/handles.h"

#include <lua.hpp>

#include <exception>
#include <string>

namespace workbench::script {

namespace {

/// What a call does, such as "drag control LayerControl 10 20".
std::string wordsFor(const Call& call, const Arguments& arguments, bool isMethod) {
    std::string words = call.name;
    if (isMethod)
        words += " " + wordsOf(arguments);
    for (int number = 1; number <= arguments.count(); ++number)
        words += " " + arguments.words(number);
    return words;
}

/// Runs a call; its failure becomes the script's, with the script's place in front. So does that of
/// a listener that the call has made run.
int runCall(lua_State* lua) {
    auto& session = *static_cast<Session*>(lua_touserdata(lua, lua_upvalueindex(1)));
    const auto& call = *static_cast<const Call*>(lua_touserdata(lua, lua_upvalueindex(2)));
    const char* prefix = lua_tostring(lua, lua_upvalueindex(3));
    const int first = static_cast<int>(lua_tointeger(lua, lua_upvalueindex(4)));
    std::string reason;
    try {
        Arguments arguments(lua, first);
        if (call.kind == CallKind::Acts)
            session.noteGesture(wordsFor(call, arguments, first > 1));
        const int results = call.function(session, arguments);
        reason = session.takeListenerError();
        if (reason.empty())
            return results;
    } catch (const std::exception& error) {
        reason = error.what();
    }
    return luaL_error(lua, "%s%s: %s", prefix, call.name, reason.c_str());
}

int refuseName(lua_State* lua) {
    const char* prefix = lua_tostring(lua, lua_upvalueindex(1));
    const char* name = luaL_tolstring(lua, 2, nullptr);
    return luaL_error(lua, "there is no call %s%s", prefix, name);
}

}  // namespace

void addCalls(lua_State* lua, Session& session, const std::vector<Call>& calls, const char* prefix,
              bool methods) {
    for (const Call& call : calls) {
        lua_pushlightuserdata(lua, &session);
        lua_pushlightuserdata(lua, const_cast<Call*>(&call));
        lua_pushstring(lua, prefix);
        lua_pushinteger(lua, methods ? 2 : 1);
        lua_pushcclosure(lua, runCall, 4);
        lua_setfield(lua, -2, call.name);
    }
}

void refuseUnknownNames(lua_State* lua, const char* prefix) {
    lua_newtable(lua);
    lua_pushstring(lua, prefix);
    lua_pushcclosure(lua, refuseName, 1);
    lua_setfield(lua, -2, "__index");
    lua_setmetatable(lua, -2);
}

}  // namespace workbench::script
