#include "workbench/xml/xml_node_operations.h"

#include <algorithm>
#include <charconv>

namespace workbench {

namespace {

/// XML has no place for most control characters, not even as references.
bool isXmlText(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char character) {
        const auto byte = static_cast<unsigned char>(character);
        return byte >= 0x20 || character == '\t' || character == '\n' || character == '\r';
    });
}

void requireXmlText(std::string_view text) {
    if (!isXmlText(text))
        throw VxComError{kXmlBadText};
}

}  // namespace

XmlNode* findChild(const XmlNode& node, std::string_view name) {
    const pugi::xml_node child = node.element().child(std::string(name).c_str());
    return child ? node.tree().makeNode(child) : nullptr;
}

std::vector<IXMLDOMNode*> childElements(const XmlNode& node) {
    std::vector<IXMLDOMNode*> children;
    for (const pugi::xml_node child : node.element().children()) {
        if (child.type() == pugi::node_element)
            children.push_back(node.tree().makeNode(child));
    }
    return children;
}

XmlNode* addChild(const XmlNode& node, std::string_view name) {
    if (!isXmlName(name))
        return nullptr;
    return node.tree().makeNode(node.element().append_child(std::string(name).c_str()));
}

std::optional<std::string> readAttribute(const XmlNode& node, std::string_view name) {
    const pugi::xml_attribute attribute = node.element().attribute(std::string(name).c_str());
    if (!attribute)
        return std::nullopt;
    return attribute.value();
}

void writeAttribute(const XmlNode& node, std::string_view name, std::string_view text) {
    if (!isXmlName(name))
        throw VxComError{kXmlBadText};
    requireXmlText(text);
    const std::string key(name);
    pugi::xml_attribute attribute = node.element().attribute(key.c_str());
    if (!attribute)
        attribute = node.element().append_attribute(key.c_str());
    attribute.set_value(std::string(text).c_str());
}

std::optional<std::string> readText(const XmlNode& node) {
    const pugi::xml_text text = node.element().text();
    if (!text)
        return std::nullopt;
    return text.get();
}

void writeText(const XmlNode& node, std::string_view text) {
    requireXmlText(text);
    node.tree().removeChildren(node.element());
    node.element().text().set(std::string(text).c_str());
}

std::optional<std::int32_t> parseWholeNumber(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return std::nullopt;
    text = text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

}  // namespace workbench
