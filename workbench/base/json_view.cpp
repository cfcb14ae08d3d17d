#include "workbench/base/json_view.h"

#include "workbench/base/input_error.h"

#include <algorithm>
#include <iterator>

namespace workbench {

namespace {

std::string_view kindName(JsonValue::Kind kind) {
    switch (kind) {
    case JsonValue::Kind::Null:
        return "null";
    case JsonValue::Kind::Boolean:
        return "true or false";
    case JsonValue::Kind::Number:
        return "a number";
    case JsonValue::Kind::String:
        return "a string";
    case JsonValue::Kind::Array:
        return "an array";
    case JsonValue::Kind::Object:
        return "an object";
    }
    return "nothing";
}

/// A key as a JSON pointer writes it.
std::string escaped(std::string_view step) {
    std::string text;
    for (const char character : step) {
        if (character == '~')
            text += "~0";
        else if (character == '/')
            text += "~1";
        else
            text += character;
    }
    return text;
}

}  // namespace

std::string inQuotes(std::string_view text) {
    return '"' + std::string(text) + '"';
}

void JsonView::fail(const std::string& reason) const {
    std::string place = *m_file + ":" + std::to_string(m_value->line);
    if (!m_pointer.empty())
        place += ": " + m_pointer;
    throw InputError(place, reason);
}

const std::string& JsonView::string() const {
    require(JsonValue::Kind::String);
    return m_value->text;
}

const std::string& JsonView::name() const {
    if (string().empty())
        fail("must not be empty");
    return m_value->text;
}

bool JsonView::boolean() const {
    require(JsonValue::Kind::Boolean);
    return m_value->boolean;
}

std::vector<JsonView> JsonView::array() const {
    require(JsonValue::Kind::Array);
    std::vector<JsonView> elements;
    elements.reserve(m_value->items.size());
    for (std::size_t index = 0; index < m_value->items.size(); ++index)
        elements.push_back(child(index, std::to_string(index)));
    return elements;
}

JsonObjectView JsonView::object(std::initializer_list<std::string_view> keys) const {
    JsonObjectView object = this->object();
    for (std::size_t index = 0; index < m_value->names.size(); ++index) {
        const std::string& key = m_value->names[index];
        if (std::find(keys.begin(), keys.end(), key) == keys.end())
            child(index, key).fail("unknown key " + inQuotes(key));
    }
    return object;
}

JsonObjectView JsonView::object() const {
    require(JsonValue::Kind::Object);
    return JsonObjectView(*this);
}

void JsonView::require(JsonValue::Kind kind) const {
    if (m_value->kind != kind) {
        fail("must be " + std::string(kindName(kind)) + ", not " +
             std::string(kindName(m_value->kind)));
    }
}

JsonView JsonView::child(std::size_t index, std::string_view step) const {
    return {m_value->items[index], *m_file, m_pointer + "/" + escaped(step)};
}

std::optional<JsonView> JsonObjectView::find(std::string_view key) const {
    const auto found = std::find(keys().begin(), keys().end(), key);
    if (found == keys().end())
        return std::nullopt;
    return m_object.child(static_cast<std::size_t>(std::distance(keys().begin(), found)), key);
}

JsonView JsonObjectView::at(std::string_view key) const {
    const std::optional<JsonView> value = find(key);
    if (!value)
        m_object.fail("needs the key " + inQuotes(key));
    return *value;
}

std::string JsonObjectView::stringOr(std::string_view key) const {
    const std::optional<JsonView> value = find(key);
    return value ? value->string() : std::string();
}

}  // namespace workbench
