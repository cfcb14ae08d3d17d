#include "workbench/script/lua_values.h"

#include "workbench/script/script_error.h"

#include <gtest/gtest.h>
#include <lua.hpp>

#include <memory>

namespace workbench::script {

namespace {

struct LuaCloser {
    void operator()(lua_State* lua) const { lua_close(lua); }
};

class LuaValuesTest : public testing::Test {
protected:
    lua_State* lua() { return m_lua.get(); }
    LuaValuesTest() { luaL_openlibs(lua()); }
    /// The value of a Lua expression.
    Value evaluate(const std::string& expression) {
        EXPECT_EQ(luaL_dostring(lua(), ("return " + expression).c_str()), LUA_OK);
        return toValue(lua(), -1);
    }

private:
    std::unique_ptr<lua_State, LuaCloser> m_lua{luaL_newstate()};
};

TEST_F(LuaValuesTest, PlainValuesComeOverWithTheirKinds) {
    EXPECT_TRUE(evaluate("nil").isNil());
    EXPECT_EQ(evaluate("true"), Value(true));
    EXPECT_TRUE(evaluate("7").isInteger());
    EXPECT_TRUE(evaluate("7.0").isReal());
    EXPECT_EQ(evaluate("'a\\0b'"), Value(std::string("a\0b", 3)));
}

TEST_F(LuaValuesTest, NumberedTableIsAListAndNamedOneATable) {
    EXPECT_EQ(evaluate("{1, 'two', {3}}"), Value(Value::List{1, "two", Value(Value::List{3})}));
    EXPECT_EQ(evaluate("{a = 1, b = {c = true}}"),
              Value(Value::Table{{"a", 1}, {"b", Value(Value::Table{{"c", true}})}}));
    EXPECT_TRUE(evaluate("{}").isTable());
}

TEST_F(LuaValuesTest, WhatIsNoPlainValueIsRefused) {
    EXPECT_THROW(evaluate("function() end"), ScriptError);
    EXPECT_THROW(evaluate("{a = function() end}"), ScriptError);
    EXPECT_THROW(evaluate("{[true] = 1}"), ScriptError);
}

TEST_F(LuaValuesTest, TableInsideItselfIsRefused) {
    EXPECT_THROW(evaluate("(function() local t = {} t.t = t return t end)()"), ScriptError);
}

TEST_F(LuaValuesTest, PushedValuesAreTheSameInLua) {
    push(lua(), Value(Value::Table{
                    {"list", Value(Value::List{1, 2.5, "three"})}, {"yes", true}, {"none", {}}}));
    lua_setglobal(lua(), "v");
    EXPECT_EQ(evaluate("v.list[1] == 1 and math.type(v.list[1]) == 'integer' and "
                       "v.list[2] == 2.5 and v.list[3] == 'three' and #v.list == 3 and "
                       "v.yes == true and v.none == nil"),
              Value(true));
}

TEST_F(LuaValuesTest, TextsArePushedAsAList) {
    push(lua(), std::vector<std::string>{"a", "b"});
    lua_setglobal(lua(), "v");
    EXPECT_EQ(evaluate("#v == 2 and v[1] == 'a' and v[2] == 'b'"), Value(true));
}

}  // namespace

}  // namespace workbench::script
