#include "workbench/base/value.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace workbench {

namespace {

[[noreturn]] void expected(const char* what, const Value& got) {
    throw ValueError(std::string("expected ") + what + ", got " + got.describe());
}

std::string realText(double value) {
    char buffer[32];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    return {buffer, end};
}

bool sameTable(const Value::Table& left, const Value& right) {
    return left.size() == right.asTable().size() &&
           std::all_of(left.begin(), left.end(), [&right](const Value::Member& member) {
               const Value* other = right.member(member.name);
               return other != nullptr && *other == member.value;
           });
}

}  // namespace

Value::Value(bool value) : m_value(value) {}
Value::Value(int value) : m_value(static_cast<std::int64_t>(value)) {}
Value::Value(std::int64_t value) : m_value(value) {}
Value::Value(double value) : m_value(value) {}
Value::Value(const char* value) : m_value(std::string(value)) {}
Value::Value(std::string value) : m_value(std::move(value)) {}
Value::Value(List value) : m_value(std::move(value)) {}
Value::Value(Table value) : m_value(std::move(value)) {}

bool Value::asBool() const {
    if (!isBool()) {
        expected("true or false", *this);
    }
    return std::get<bool>(m_value);
}

std::int64_t Value::asInteger() const {
    if (isReal()) {
        const double real = std::get<double>(m_value);
        // Beyond 2^53 a real no longer names one whole number.
        if (std::trunc(real) == real && std::abs(real) <= 9007199254740992.0) {
            return static_cast<std::int64_t>(real);
        }
    }
    if (!isInteger()) {
        expected("a whole number", *this);
    }
    return std::get<std::int64_t>(m_value);
}

double Value::asReal() const {
    if (isInteger()) {
        return static_cast<double>(std::get<std::int64_t>(m_value));
    }
    if (!isReal()) {
        expected("a number", *this);
    }
    return std::get<double>(m_value);
}

const std::string& Value::asString() const {
    if (!isString()) {
        expected("a text", *this);
    }
    return std::get<std::string>(m_value);
}

const Value::List& Value::asList() const {
    if (!isList()) {
        expected("a list", *this);
    }
    return std::get<List>(m_value);
}

const Value::Table& Value::asTable() const {
    if (!isTable()) {
        expected("a table", *this);
    }
    return std::get<Table>(m_value);
}

Value::List& Value::asList() {
    return const_cast<List&>(static_cast<const Value*>(this)->asList());
}

Value::Table& Value::asTable() {
    return const_cast<Table&>(static_cast<const Value*>(this)->asTable());
}

const Value* Value::member(std::string_view name) const {
    if (!isTable()) {
        return nullptr;
    }
    const Table& table = asTable();
    const auto found = std::find_if(table.begin(), table.end(),
                                    [name](const Member& member) { return member.name == name; });
    return found == table.end() ? nullptr : &found->value;
}

std::string Value::describe() const {
    if (isNil()) {
        return "nothing";
    }
    if (isBool()) {
        return asBool() ? "true" : "false";
    }
    if (isInteger()) {
        return std::to_string(asInteger());
    }
    if (isReal()) {
        return realText(asReal());
    }
    if (isString()) {
        return "\"" + asString() + "\"";
    }
    return isList() ? "a list" : "a table";
}

bool operator==(const Value& left, const Value& right) {
    if (left.isNumber() && right.isNumber()) {
        return left.isInteger() && right.isInteger() ? left.asInteger() == right.asInteger()
                                                     : left.asReal() == right.asReal();
    }
    if (left.m_value.index() != right.m_value.index()) {
        return false;
    }
    if (left.isBool()) {
        return left.asBool() == right.asBool();
    }
    if (left.isString()) {
        return left.asString() == right.asString();
    }
    if (left.isList()) {
        return left.asList() == right.asList();
    }
    return left.isNil() || sameTable(left.asTable(), right);
}

}  // namespace workbench
