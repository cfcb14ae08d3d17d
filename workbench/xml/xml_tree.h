#pragma once

#include <pugixml.hpp>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

class XmlNode;

/// One XML document, with the node objects that point into it. What is removed from the document is
/// taken from its node objects too, so none of them ever points at nothing.
class XmlTree : public std::enable_shared_from_this<XmlTree> {
public:
    /// An empty document with a root element.
    static std::shared_ptr<XmlTree> make(std::string_view rootName);
    /// The document of a text; null, with the reason, if it is not well-formed or has no root
    /// element of this name.
    static std::shared_ptr<XmlTree> parse(std::string_view text, std::string_view rootName,
                                          std::string& reason);

    XmlTree(const XmlTree&) = delete;
    XmlTree& operator=(const XmlTree&) = delete;

    pugi::xml_node root() const { return m_document.document_element(); }
    /// The document as indented UTF-8 text.
    std::string text() const;

    /// A node object, counted once, for an element of this tree; the caller releases it. The tree
    /// lives at least as long.
    XmlNode* makeNode(pugi::xml_node element);
    /// Removes all children of an element.
    void removeChildren(pugi::xml_node element);

private:
    friend class XmlNode;

    XmlTree() = default;

    pugi::xml_document m_document;
    std::vector<XmlNode*> m_nodes;  // not owned: each takes itself out
};

/// Whether a text can be the name of an element or attribute.
bool isXmlName(std::string_view name);

}  // namespace workbench
