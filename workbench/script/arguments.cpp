#include "workbench/script/arguments.h"

#include "workbench/script/lua_values.h"
#include "workbench/script/script_error.h"

#include <lua.hpp>

#include <algorithm>
#include <limits>

namespace workbench::script {

Arguments::Arguments(lua_State* lua, int first)
    : m_lua(lua),
      m_first(first),
      m_count(std::max(0, lua_gettop(lua) - first + 1)) {}

bool Arguments::has(int number) const {
    return number <= m_count && !lua_isnil(m_lua, index(number));
}

std::string Arguments::text(int number) const {
    if (!has(number) || lua_type(m_lua, index(number)) != LUA_TSTRING)
        refuse(number, "a text");
    std::size_t length = 0;
    const char* text = lua_tolstring(m_lua, index(number), &length);
    return {text, length};
}

std::optional<std::string> Arguments::optionalText(int number) const {
    if (!has(number))
        return {};
    return text(number);
}

std::int64_t Arguments::integer(int number) const {
    int isWhole = 0;
    const bool isNumber = has(number) && lua_type(m_lua, index(number)) == LUA_TNUMBER;
    const lua_Integer value =
        isNumber ? lua_tointegerx(m_lua, index(number), &isWhole) : lua_Integer{0};
    if (isWhole == 0)
        refuse(number, "a whole number");
    return value;
}

std::int64_t Arguments::integerOr(int number, std::int64_t standard) const {
    return has(number) ? integer(number) : standard;
}

int Arguments::int32(int number) const {
    const std::int64_t value = integer(number);
    if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max())
        refuse(number, "a number of 32 bits");
    return static_cast<int>(value);
}

std::optional<int> Arguments::optionalInt32(int number) const {
    if (!has(number))
        return {};
    return int32(number);
}

bool Arguments::truth(int number) const {
    if (!has(number) || !lua_isboolean(m_lua, index(number)))
        refuse(number, "true or false");
    return lua_toboolean(m_lua, index(number)) != 0;
}

Value Arguments::value(int number) const {
    return number <= m_count ? toValue(m_lua, index(number)) : Value();
}

std::string Arguments::words(int number) const {
    switch (lua_type(m_lua, index(number))) {
    case LUA_TNIL:
    case LUA_TBOOLEAN:
    case LUA_TNUMBER:
    case LUA_TSTRING: {
        std::string text = luaL_tolstring(m_lua, index(number), nullptr);
        lua_pop(m_lua, 1);
        return text;
    }
    default:
        return std::string("a ") + luaL_typename(m_lua, index(number));
    }
}

std::vector<int> Arguments::int32sFrom(int number) const {
    std::vector<int> numbers;
    for (int i = number; i <= m_count; ++i)
        numbers.push_back(int32(i));
    return numbers;
}

void Arguments::refuse(int number, const char* wanted) const {
    const std::string given = number <= m_count ? luaL_typename(m_lua, index(number)) : "nothing";
    throw ScriptError("argument " + std::to_string(number) + " must be " + wanted + ", not " +
                      given);
}

}  // namespace workbench::script
