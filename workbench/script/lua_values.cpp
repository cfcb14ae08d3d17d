#include "workbench/script/lua_values.h"

#include "workbench/script/script_error.h"

#include <lua.hpp>

namespace workbench::script {

namespace {

constexpr int kDeepest = 100;  // levels of tables in tables

Value toValueAt(lua_State* lua, int index, int depth);

Value toList(lua_State* lua, int index, lua_Integer length, int depth) {
    Value::List list;
    for (lua_Integer i = 1; i <= length; ++i) {
        lua_geti(lua, index, i);
        list.push_back(toValueAt(lua, lua_gettop(lua), depth));
        lua_pop(lua, 1);
    }
    return list;
}

Value toTable(lua_State* lua, int index, int depth) {
    Value::Table table;
    lua_pushnil(lua);
    while (lua_next(lua, index) != 0) {
        if (lua_type(lua, -2) != LUA_TSTRING)
            throw ScriptError("a table has a key that is no text");
        table.push_back({lua_tostring(lua, -2), toValueAt(lua, lua_gettop(lua), depth)});
        lua_pop(lua, 1);
    }
    return table;
}

Value toValueAt(lua_State* lua, int index, int depth) {
    switch (lua_type(lua, index)) {
    case LUA_TNIL:
        return {};
    case LUA_TBOOLEAN:
        return lua_toboolean(lua, index) != 0;
    case LUA_TNUMBER:
        if (lua_isinteger(lua, index)) {
            return static_cast<std::int64_t>(lua_tointeger(lua, index));
        }
        return lua_tonumber(lua, index);
    case LUA_TSTRING: {
        std::size_t length = 0;
        const char* text = lua_tolstring(lua, index, &length);
        return std::string(text, length);
    }
    case LUA_TTABLE: {
        if (depth >= kDeepest)
            throw ScriptError("tables stand too deep in one another");
        luaL_checkstack(lua, 4, nullptr);
        const auto length = static_cast<lua_Integer>(lua_rawlen(lua, index));
        return length > 0 ? toList(lua, index, length, depth + 1) : toTable(lua, index, depth + 1);
    }
    default:
        throw ScriptError(std::string("a ") + luaL_typename(lua, index) + " is no plain value");
    }
}

}  // namespace

void push(lua_State* lua, const Value& value) {
    luaL_checkstack(lua, 4, nullptr);
    if (value.isBool()) {
        lua_pushboolean(lua, value.asBool() ? 1 : 0);
    } else if (value.isInteger()) {
        lua_pushinteger(lua, value.asInteger());
    } else if (value.isReal()) {
        lua_pushnumber(lua, value.asReal());
    } else if (value.isString()) {
        lua_pushlstring(lua, value.asString().data(), value.asString().size());
    } else if (value.isList()) {
        lua_newtable(lua);
        lua_Integer index = 0;
        for (const Value& element : value.asList()) {
            push(lua, element);
            lua_seti(lua, -2, ++index);
        }
    } else if (value.isTable()) {
        lua_newtable(lua);
        for (const Value::Member& member : value.asTable()) {
            push(lua, member.value);
            lua_setfield(lua, -2, member.name.c_str());
        }
    } else {
        lua_pushnil(lua);
    }
}

void push(lua_State* lua, const std::vector<std::string>& texts) {
    Value::List list(texts.begin(), texts.end());
    push(lua, Value(std::move(list)));
}

Value toValue(lua_State* lua, int index) {
    return toValueAt(lua, lua_absindex(lua, index), 0);
}

}  // namespace workbench::script
