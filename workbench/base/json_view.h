#pragma once

#include "workbench/base/json_value.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace workbench {

class JsonObjectView;

/// The text in quotation marks, as complaints show it.
std::string inQuotes(std::string_view text);

/// A value of a JSON text together with its place, so that every complaint can name it.
/// The text's tree and the place's name are lent and must outlive the view.
class JsonView {
public:
    /// The whole text. `file` names it in errors.
    JsonView(const JsonValue& root, const std::string& file) : JsonView(root, file, "") {}

    /// Throws the InputError "FILE:LINE: /json/pointer: reason".
    [[noreturn]] void fail(const std::string& reason) const;

    /// The value if it is a string; throws InputError otherwise.
    const std::string& string() const;
    /// The value if it is a string that is not empty; throws InputError otherwise.
    const std::string& name() const;
    /// The value if it is true or false; throws InputError otherwise.
    bool boolean() const;
    /// The elements if it is an array; throws InputError otherwise.
    std::vector<JsonView> array() const;
    /// The object with no keys but these; throws InputError for anything else.
    JsonObjectView object(std::initializer_list<std::string_view> keys) const;
    /// The object, whatever its keys; throws InputError for anything else.
    JsonObjectView object() const;

private:
    friend class JsonObjectView;

    JsonView(const JsonValue& value, const std::string& file, std::string pointer)
        : m_value(&value),
          m_file(&file),
          m_pointer(std::move(pointer)) {}

    void require(JsonValue::Kind kind) const;
    JsonView child(std::size_t index, std::string_view step) const;

    const JsonValue* m_value;   // not owned
    const std::string* m_file;  // not owned
    std::string m_pointer;      // empty for the whole text
};

/// An object of a JSON text, looked up by key.
class JsonObjectView {
public:
    /// The value under the key, or none.
    std::optional<JsonView> find(std::string_view key) const;
    /// The value under the key; throws InputError if there is none.
    JsonView at(std::string_view key) const;
    /// The string under the key, or an empty one if there is no such key.
    std::string stringOr(std::string_view key) const;
    /// The keys in the order of the text.
    const std::vector<std::string>& keys() const { return m_object.m_value->names; }
    /// The object itself, for complaints.
    const JsonView& whole() const { return m_object; }

private:
    friend class JsonView;

    explicit JsonObjectView(JsonView object) : m_object(std::move(object)) {}

    JsonView m_object;
};

}  // namespace workbench
