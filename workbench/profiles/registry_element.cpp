#include "workbench/profiles/registry_element.h"

#include "workbench/base/text.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace workbench {

namespace {

constexpr const char* kKey = "Key";
constexpr const char* kValue = "Value";
constexpr const char* kName = "Name";
constexpr const char* kType = "Type";
constexpr const char* kData = "Data";
constexpr std::string_view kNumber = "dword";
constexpr std::string_view kText = "text";

bool isControl(char character) {
    return static_cast<unsigned char>(character) < 0x20 || character == 0x7f;
}

bool isForbiddenInText(char character) {
    return isControl(character) && character != '\t' && character != '\n' && character != '\r';
}

pugi::xml_node findNamed(pugi::xml_node parent, const char* element, std::string_view name) {
    return parent.find_child([element, name](pugi::xml_node child) {
        return std::string_view(child.name()) == element &&
               equalNoCase(child.attribute(kName).value(), name);
    });
}

pugi::xml_node makeNamed(pugi::xml_node parent, const char* element, std::string_view name) {
    pugi::xml_node made = findNamed(parent, element, name);
    if (!made) {
        made = parent.append_child(element);
        made.append_attribute(kName).set_value(std::string(name).c_str());
    }
    return made;
}

Value parseNumber(std::string_view text) {
    std::uint32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return {};
    return static_cast<std::int64_t>(number);
}

void setAttribute(pugi::xml_node element, const char* name, const std::string& text) {
    pugi::xml_attribute attribute = element.attribute(name);
    if (!attribute)
        attribute = element.append_attribute(name);
    attribute.set_value(text.c_str());
}

void removeValue(pugi::xml_node section, const RegistryPath& key, std::string_view name) {
    pugi::xml_node holder = findRegistryKey(section, key);
    holder.remove_child(findNamed(holder, kValue, name));
    while (holder && holder != section && !holder.first_child()) {
        const pugi::xml_node empty = holder;
        holder = holder.parent();
        holder.remove_child(empty);
    }
}

}  // namespace

std::optional<RegistryPath> parseRegistryPath(std::string_view text) {
    RegistryPath path;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find_first_of("/\\", start), text.size());
        const std::string_view name = text.substr(start, end - start);
        if (name.empty() || std::any_of(name.begin(), name.end(), isControl))
            return {};
        path.emplace_back(name);
        start = end + 1;
    }
    return path;
}

pugi::xml_node findRegistryKey(pugi::xml_node section, const RegistryPath& key) {
    for (const std::string& name : key)
        section = findNamed(section, kKey, name);
    return section;
}

Value readRegistryValue(pugi::xml_node key, std::string_view name) {
    const pugi::xml_node element = findNamed(key, kValue, name);
    const std::string_view type = element.attribute(kType).value();
    const std::string_view data = element.attribute(kData).value();
    if (type == kNumber)
        return parseNumber(data);
    return type == kText ? Value(std::string(data)) : Value();
}

void writeRegistryValue(pugi::xml_node section, const RegistryPath& key, std::string_view name,
                        const Value& value) {
    if (!isRegistryValue(value)) {
        removeValue(section, key, name);
        return;
    }
    pugi::xml_node holder = section;
    for (const std::string& part : key)
        holder = makeNamed(holder, kKey, part);
    const pugi::xml_node element = makeNamed(holder, kValue, name);
    setAttribute(element, kType, std::string(value.isString() ? kText : kNumber));
    setAttribute(element, kData,
                 value.isString() ? value.asString() : std::to_string(value.asInteger()));
}

bool isRegistryValue(const Value& value) {
    if (value.isInteger())
        return value.asInteger() >= 0 && value.asInteger() <= std::int64_t{UINT32_MAX};
    return value.isString() &&
           std::none_of(value.asString().begin(), value.asString().end(), isForbiddenInText);
}

}  // namespace workbench
