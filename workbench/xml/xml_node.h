#pragma once

#include "workbench/xml/xml_tree.h"

#include <hostapi/xmldom.h>

#include <memory>

namespace workbench {

/// A call on a node that the document has lost.
constexpr HRESULT kXmlNodeGone = static_cast<HRESULT>(0x8000FFFF);
/// A null or foreign node.
constexpr HRESULT kXmlBadNode = static_cast<HRESULT>(0x80070057);
/// A name or text that XML cannot hold.
constexpr HRESULT kXmlBadText = static_cast<HRESULT>(0x80004005);

/// The node object that modules get: counted, and aware of its element's end.
class XmlNode final : public IXMLDOMNode {
public:
    /// Joins the nodes of a tree with a count of 1.
    XmlNode(std::shared_ptr<XmlTree> tree, pugi::xml_node element);
    XmlNode(const XmlNode&) = delete;
    XmlNode& operator=(const XmlNode&) = delete;

    // IUnknown:
    HRESULT QueryInterface(const GUID& interfaceId, void** object) override;
    UINT AddRef() override;
    UINT Release() override;

    /// The element; a null one after its end.
    pugi::xml_node element() const { return m_element; }
    XmlTree& tree() const { return *m_tree; }
    /// Cuts the object off from its element, which goes.
    void detach() { m_element = pugi::xml_node(); }

    /// How many node objects live.
    static int liveCount() { return s_live; }

private:
    ~XmlNode();

    inline static int s_live = 0;

    std::shared_ptr<XmlTree> m_tree;
    pugi::xml_node m_element;
    UINT m_count = 1;
};

/// The node object behind the interface, with its element. Raises `VxComError` for null, for a
/// foreign object, and for a node whose element is gone.
XmlNode& xmlNodeOf(IXMLDOMNode* node);

}  // namespace workbench
