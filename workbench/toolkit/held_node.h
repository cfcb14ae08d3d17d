#pragma once

#include <hostapi/xmldom.h>

namespace workbench {

/// A counted node of a document, released at the end of the scope; null for none.
class HeldNode {
public:
    explicit HeldNode(IXMLDOMNode* node) : m_node(node) {}
    HeldNode(const HeldNode&) = delete;
    HeldNode& operator=(const HeldNode&) = delete;
    ~HeldNode() {
        if (m_node != nullptr)
            m_node->Release();
    }
    IXMLDOMNode* get() const { return m_node; }

private:
    IXMLDOMNode* m_node;
};

}  // namespace workbench
