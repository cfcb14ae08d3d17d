#include "palette/xml_node.h"

NodePtr queryNode(IUnknown* storage) {
    if (storage == nullptr)
        return nullptr;
    void* node = nullptr;
    if (storage->QueryInterface(IID_IXMLDOMNode, &node) < S_OK)
        return nullptr;
    return NodePtr(static_cast<IXMLDOMNode*>(node));
}
