#include "workbench/profiles/variable_element.h"

#include "workbench/base/text.h"

#include <array>
#include <charconv>
#include <string>

namespace workbench {

namespace {

constexpr const char* kElement = "Variable";
constexpr const char* kName = "Name";
constexpr const char* kType = "Type";
constexpr const char* kValue = "Value";
constexpr const char* kInteger = "integer";
constexpr const char* kReal = "real";
constexpr const char* kText = "text";

pugi::xml_node findVariable(pugi::xml_node section, std::string_view name) {
    return section.find_child([name](pugi::xml_node element) {
        return std::string_view(element.name()) == kElement &&
               equalNoCase(element.attribute(kName).value(), name);
    });
}

template <class Number>
Value parse(std::string_view text) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return {};
    return number;
}

template <class Number>
std::string print(Number number) {
    // The shortest text that reads back as the same number.
    std::array<char, 40> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), result.ptr};
}

void setAttribute(pugi::xml_node element, const char* name, const std::string& text) {
    pugi::xml_attribute attribute = element.attribute(name);
    if (!attribute)
        attribute = element.append_attribute(name);
    attribute.set_value(text.c_str());
}

}  // namespace

Value readVariable(pugi::xml_node section, std::string_view name) {
    const pugi::xml_node element = findVariable(section, name);
    const std::string_view type = element.attribute(kType).value();
    const std::string_view text = element.attribute(kValue).value();
    if (type == kInteger)
        return parse<std::int64_t>(text);
    if (type == kReal)
        return parse<double>(text);
    if (type == kText)
        return std::string(text);
    return {};
}

void writeVariable(pugi::xml_node section, std::string_view name, const Value& value) {
    pugi::xml_node element = findVariable(section, name);
    if (!value.isNumber() && !value.isString()) {
        section.remove_child(element);
        return;
    }
    if (!element)
        element = section.append_child(kElement);
    const bool isText = value.isString();
    setAttribute(element, kName, std::string(name));
    setAttribute(element, kType, isText ? kText : value.isInteger() ? kInteger : kReal);
    setAttribute(element, kValue,
                 isText              ? value.asString()
                 : value.isInteger() ? print(value.asInteger())
                                     : print(value.asReal()));
}

}  // namespace workbench
