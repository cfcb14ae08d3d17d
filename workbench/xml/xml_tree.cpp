#include "workbench/xml/xml_tree.h"

#include "workbench/xml/xml_node.h"

#include <algorithm>
#include <sstream>

namespace workbench {

namespace {

bool isNameStart(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || byte == '_' ||
           byte >= 0x80;
}

bool isNamePart(char character) {
    return isNameStart(character) || (character >= '0' && character <= '9') || character == '-' ||
           character == '.';
}

bool isInside(pugi::xml_node element, pugi::xml_node ancestor) {
    for (pugi::xml_node step = element.parent(); step; step = step.parent()) {
        if (step == ancestor)
            return true;
    }
    return false;
}

/// The place of a byte in a text, as people count.
std::string lineAndColumn(std::string_view text, std::size_t offset) {
    const std::string_view before = text.substr(0, offset);
    const auto line = 1 + std::count(before.begin(), before.end(), '\n');
    const std::size_t lineStart = before.rfind('\n');
    const std::size_t column =
        lineStart == std::string_view::npos ? offset + 1 : offset - lineStart;
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

}  // namespace

std::shared_ptr<XmlTree> XmlTree::make(std::string_view rootName) {
    std::shared_ptr<XmlTree> tree(new XmlTree);
    tree->m_document.append_child(std::string(rootName).c_str());
    return tree;
}

std::shared_ptr<XmlTree> XmlTree::parse(std::string_view text, std::string_view rootName,
                                        std::string& reason) {
    std::shared_ptr<XmlTree> tree(new XmlTree);
    // A text of blanks alone is a text too.
    const pugi::xml_parse_result result = tree->m_document.load_buffer(
        text.data(), text.size(), pugi::parse_default | pugi::parse_ws_pcdata_single,
        pugi::encoding_utf8);
    if (!result) {
        reason = std::string(result.description()) + " (" +
                 lineAndColumn(
                     text, std::min(text.size(), static_cast<std::size_t>(
                                                     std::max<std::ptrdiff_t>(0, result.offset)))) +
                 ")";
        return nullptr;
    }
    if (tree->root().name() != rootName) {
        reason = "the root element is not <" + std::string(rootName) + ">";
        return nullptr;
    }
    return tree;
}

std::string XmlTree::text() const {
    std::ostringstream out;
    m_document.save(out, "  ", pugi::format_indent, pugi::encoding_utf8);
    return out.str();
}

XmlNode* XmlTree::makeNode(pugi::xml_node element) {
    return new XmlNode(shared_from_this(), element);
}

void XmlTree::removeChildren(pugi::xml_node element) {
    for (XmlNode* node : m_nodes) {
        if (isInside(node->element(), element))
            node->detach();
    }
    element.remove_children();
}

bool isXmlName(std::string_view name) {
    return !name.empty() && isNameStart(name.front()) &&
           std::all_of(name.begin(), name.end(), isNamePart);
}

}  // namespace workbench
