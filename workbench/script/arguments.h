#pragma once

#include "workbench/base/value.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct lua_State;

namespace workbench::script {

/// The arguments of one call from a script, numbered from 1; a method's handle isn't counted. What
/// doesn't fit throws ScriptError that names the argument.
class Arguments {
public:
    /// `first` is the stack index of argument 1.
    Arguments(lua_State* lua, int first);

    lua_State* lua() const { return m_lua; }
    int count() const { return m_count; }
    /// Whether an argument is there and not nil.
    bool has(int number) const;

    std::string text(int number) const;
    std::optional<std::string> optionalText(int number) const;
    std::int64_t integer(int number) const;
    std::int64_t integerOr(int number, std::int64_t standard) const;
    /// A whole number that fits a parameter of 32 bits.
    int int32(int number) const;
    std::optional<int> optionalInt32(int number) const;
    bool truth(int number) const;
    Value value(int number) const;
    /// What was given, in words for the journal.
    std::string words(int number) const;
    /// All arguments from a number on, as `int32` takes them.
    std::vector<int> int32sFrom(int number) const;
    /// The stack index of an argument.
    int index(int number) const { return m_first + number - 1; }

private:
    [[noreturn]] void refuse(int number, const char* wanted) const;

    lua_State* m_lua;
    int m_first;
    int m_count;
};

}  // namespace workbench::script
