#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace workbench {

/// A plain value, as drawing files hold it and scripts see it: nothing, a truth, a number, a text,
/// a list, or a table whose members keep their order.
class Value {
public:
    struct Member;
    using List = std::vector<Value>;
    using Table = std::vector<Member>;

    Value() = default;
    Value(bool value);
    Value(int value);
    Value(std::int64_t value);
    Value(double value);
    Value(const char* value);
    Value(std::string value);
    Value(List value);
    Value(Table value);

    bool isNil() const { return std::holds_alternative<std::monostate>(m_value); }
    bool isBool() const { return std::holds_alternative<bool>(m_value); }
    bool isInteger() const { return std::holds_alternative<std::int64_t>(m_value); }
    bool isReal() const { return std::holds_alternative<double>(m_value); }
    bool isNumber() const { return isInteger() || isReal(); }
    bool isString() const { return std::holds_alternative<std::string>(m_value); }
    bool isList() const { return std::holds_alternative<List>(m_value); }
    bool isTable() const { return std::holds_alternative<Table>(m_value); }

    /// The content; each throws `ValueError` when the value is of another type. `asInteger` takes
    /// reals without a fraction too, `asReal` takes integers.
    bool asBool() const;
    std::int64_t asInteger() const;
    double asReal() const;
    const std::string& asString() const;
    const List& asList() const;
    const Table& asTable() const;
    List& asList();
    Table& asTable();

    /// Member of a table by its exact name; null when there is none or this is no table.
    const Value* member(std::string_view name) const;

    /// The value in a word or two, for messages: `"text"`, `3`, `a list`.
    std::string describe() const;

    /// Equal in content; the integer 2 and the real 2.0 are equal, and tables are equal whatever
    /// the order of their members.
    friend bool operator==(const Value& left, const Value& right);

private:
    std::variant<std::monostate, bool, std::int64_t, double, std::string, List, Table> m_value;
};

/// A named value of a table.
struct Value::Member {
    std::string name;
    Value value;
};

/// A value that doesn't fit where it should go; what() is the reason, without a place.
class ValueError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace workbench
