#pragma once

#include "workbench/xml/xml_node.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// What can be done with a node. Names and texts are UTF-8. Node objects that are handed out are
/// counted once, for the caller to release.

/// The first child element of a name, exact; null for none.
XmlNode* findChild(const XmlNode& node, std::string_view name);
/// The child elements in order.
std::vector<IXMLDOMNode*> childElements(const XmlNode& node);
/// Adds a child element at the end; null for a name that XML does not allow.
XmlNode* addChild(const XmlNode& node, std::string_view name);

/// The text of an attribute; nothing if it is missing.
std::optional<std::string> readAttribute(const XmlNode& node, std::string_view name);
/// Sets an attribute. Raises `VxComError` for a name or text that XML does not allow.
void writeAttribute(const XmlNode& node, std::string_view name, std::string_view text);

/// The text directly in an element; nothing if there is none.
std::optional<std::string> readText(const XmlNode& node);
/// Sets the text in an element in place of what it holds; line ends become "\n" with the next
/// reading, as everywhere in XML. Raises `VxComError` for a text that XML
/// does not allow.
void writeText(const XmlNode& node, std::string_view text);

/// A whole number of 32 bits, with nothing but blanks around it.
std::optional<std::int32_t> parseWholeNumber(std::string_view text);

}  // namespace workbench
