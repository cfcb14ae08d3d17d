#include "workbench/script/script_engine.h"

#include "workbench/base/json_parser.h"
#include "workbench/script/exported_calls.h"
#include "workbench/script/handles.h"
#include "workbench/script/lua_calls.h"
#include "workbench/script/lua_values.h"

#include <lua.hpp>

#include <memory>

namespace workbench {

namespace {

struct LuaCloser {
    void operator()(lua_State* lua) const { lua_close(lua); }
};
using LuaPtr = std::unique_ptr<lua_State, LuaCloser>;

/// Lua's own `assert` tells no place; this one puts the place of the check in front.
constexpr const char* kPlacedAssert = R"(
function assert(condition, message, ...)
    if condition then return condition, message, ... end
    if message == nil then message = "assertion failed!" end
    error(tostring(message), 2)
end
)";

void addWorkbenchTable(lua_State* lua, script::Session& session) {
    lua_newtable(lua);
    for (const std::vector<script::Call>* calls :
         {&script::sessionCalls(), &script::moduleCalls(), &script::documentCalls(),
          &script::dashboardCalls(), &script::recordCalls()}) {
        script::addCalls(lua, session, *calls, "wb.", false);
    }
    script::refuseUnknownNames(lua, "wb.");
    lua_setglobal(lua, "wb");
}

void prepare(lua_State* lua, script::Session& session, const std::string& place,
             const std::vector<std::string>& arguments) {
    luaL_openlibs(lua);
    luaL_dostring(lua, kPlacedAssert);
    script::addHandleKinds(lua, session);
    addWorkbenchTable(lua, session);
    script::push(lua, arguments);
    lua_pushstring(lua, place.c_str());
    lua_seti(lua, -2, 0);
    lua_setglobal(lua, "arg");
}

/// Runs the chunk on top of the stack with the arguments, which it sees as `...` too.
int callChunk(lua_State* lua, const std::vector<std::string>& arguments) {
    luaL_checkstack(lua, static_cast<int>(arguments.size()), nullptr);
    for (const std::string& argument : arguments)
        lua_pushlstring(lua, argument.data(), argument.size());
    return lua_pcall(lua, static_cast<int>(arguments.size()), 0, 0);
}

std::string messageOnTop(lua_State* lua) {
    const char* message = luaL_tolstring(lua, -1, nullptr);
    return message == nullptr ? "an error without words" : message;
}

}  // namespace

ScriptResult runScriptFile(Workbench& workbench, const std::filesystem::path& file,
                           const std::vector<std::string>& arguments) {
    return runScriptText(workbench, readWholeFile(file), file.string(), arguments);
}

ScriptResult runScriptText(Workbench& workbench, std::string_view text, const std::string& place,
                           const std::vector<std::string>& arguments) {
    script::Session session(workbench);
    const LuaPtr lua(luaL_newstate());
    prepare(lua.get(), session, place, arguments);
    const std::string chunkName = "@" + place;
    // "t": a text only, since a file of compiled code could do anything.
    ScriptResult result{true, {}};
    if (luaL_loadbufferx(lua.get(), text.data(), text.size(), chunkName.c_str(), "t") != LUA_OK ||
        callChunk(lua.get(), arguments) != LUA_OK) {
        result = {false, messageOnTop(lua.get())};
    }
    script::removeListeners(session, lua.get());
    return result;
}

}  // namespace workbench
