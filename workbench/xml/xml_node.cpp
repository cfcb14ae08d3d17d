#include "workbench/xml/xml_node.h"

#include "workbench/core/host_call.h"

#include <utility>
#include <vector>

namespace workbench {

XmlNode::XmlNode(std::shared_ptr<XmlTree> tree, pugi::xml_node element)
    : m_tree(std::move(tree)),
      m_element(element) {
    m_tree->m_nodes.push_back(this);
    ++s_live;
}

XmlNode::~XmlNode() {
    std::erase(m_tree->m_nodes, this);
    --s_live;
}

HRESULT XmlNode::QueryInterface(const GUID& interfaceId, void** object) {
    HostCall call("IXMLDOMNode::QueryInterface");
    if (object == nullptr)
        return call.returns(kXmlBadNode);
    if (call.failed() || interfaceId != IID_IXMLDOMNode) {
        *object = nullptr;
        return call.returns<HRESULT>(call.status(E_NOINTERFACE));
    }
    AddRef();
    *object = static_cast<IXMLDOMNode*>(this);
    return call.returns(S_OK);
}

UINT XmlNode::AddRef() {
    return ++m_count;
}

UINT XmlNode::Release() {
    const UINT left = --m_count;
    if (left == 0)
        delete this;
    return left;
}

XmlNode& xmlNodeOf(IXMLDOMNode* node) {
    auto* const known = dynamic_cast<XmlNode*>(node);
    if (known == nullptr)
        throw VxComError{kXmlBadNode};
    if (!known->element())
        throw VxComError{kXmlNodeGone};
    return *known;
}

}  // namespace workbench
