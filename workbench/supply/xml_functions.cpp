#include "workbench/base/text.h"
#include "workbench/core/host_call.h"
#include "workbench/xml/xml_node_operations.h"

#include <hostapi/vxut.h>

#include <optional>
#include <string>

using workbench::HostCall;
using workbench::toUtf8;
using workbench::toWide;
using workbench::XmlNode;
using workbench::xmlNodeOf;

namespace {

/// The failure of an operation that reports by `VxComError`.
[[noreturn]] void raise(const HostCall& call) {
    throw VxComError{call.status(workbench::kXmlBadText)};
}

/// The node object for an operation that reports by an empty answer; null for what isn't there.
const XmlNode* knownNode(IXMLDOMNode* node) {
    const auto* known = dynamic_cast<const XmlNode*>(node);
    return known != nullptr && known->element() ? known : nullptr;
}

/// An attribute's text for a reading call; nothing if the call is to fail or finds none.
std::optional<std::string> attributeText(const HostCall& call, IXMLDOMNode* node,
                                         const wchar_t* name) {
    const XmlNode* const known = knownNode(node);
    if (call.failed() || known == nullptr || name == nullptr)
        return std::nullopt;
    return workbench::readAttribute(*known, toUtf8(name));
}

}  // namespace

BOOL VxUtResString::Load(IXMLDOMNode* node) {
    HostCall call("VxUtResString::Load", {node});
    m_text.clear();
    const XmlNode* const known = knownNode(node);
    if (call.failed() || known == nullptr)
        return call.returns<BOOL>(0);
    const std::optional<std::string> text = workbench::readText(*known);
    if (!text)
        return call.returns<BOOL>(0);
    m_text = toWide(*text);
    return call.returns<BOOL>(1);
}

void VxUtResString::Save(IXMLDOMNode* node) const {
    const HostCall call("VxUtResString::Save", {node, m_text});
    if (call.failed())
        raise(call);
    workbench::writeText(xmlNodeOf(node), toUtf8(m_text));
}

namespace VxUt {

IXMLDOMNode* GetChildNode(IXMLDOMNode* node, const wchar_t* name) {
    HostCall call("VxUt::GetChildNode", {node, name});
    const XmlNode* const known = knownNode(node);
    if (call.failed() || known == nullptr || name == nullptr)
        return call.returns<IXMLDOMNode*>(nullptr);
    return call.returns<IXMLDOMNode*>(workbench::findChild(*known, toUtf8(name)));
}

CTypedPtrArray<IXMLDOMNode*> GetChildNodes(IXMLDOMNode* node) {
    const HostCall call("VxUt::GetChildNodes", {node});
    const XmlNode* const known = knownNode(node);
    if (call.failed() || known == nullptr)
        return {};
    return workbench::childElements(*known);
}

VxString GetNodeName(IXMLDOMNode* node) {
    HostCall call("VxUt::GetNodeName", {node});
    const XmlNode* const known = knownNode(node);
    if (call.failed() || known == nullptr)
        return {};
    return call.returns(toWide(known->element().name()));
}

IXMLDOMNode* AddChildNode(IXMLDOMNode* node, const wchar_t* name, int nodeType) {
    HostCall call("VxUt::AddChildNode", {node, name, nodeType});
    if (call.failed()) {
        // Told to fail with a status, the call raises it; otherwise the tree refuses.
        if (call.status(S_OK) != S_OK)
            raise(call);
        return call.returns<IXMLDOMNode*>(nullptr);
    }
    const XmlNode& parent = xmlNodeOf(node);
    if (name == nullptr || nodeType != kElementNode)
        return call.returns<IXMLDOMNode*>(nullptr);
    return call.returns<IXMLDOMNode*>(workbench::addChild(parent, toUtf8(name)));
}

void RemoveChildren(IXMLDOMNode* node) {
    const HostCall call("VxUt::RemoveChildren", {node});
    if (call.failed())
        raise(call);
    const XmlNode& parent = xmlNodeOf(node);
    parent.tree().removeChildren(parent.element());
}

bool GetAttributeValue(IXMLDOMNode* node, const wchar_t* name, VxString& value) {
    HostCall call("VxUt::GetAttributeValue", {node, name});
    const std::optional<std::string> text = attributeText(call, node, name);
    if (!text)
        return call.returns(false);
    value = toWide(*text);
    return call.returns(true);
}

bool GetAttributeValue(IXMLDOMNode* node, const wchar_t* name, std::int32_t& value) {
    HostCall call("VxUt::GetAttributeValue", {node, name});
    const std::optional<std::string> text = attributeText(call, node, name);
    const std::optional<std::int32_t> number =
        text ? workbench::parseWholeNumber(*text) : std::nullopt;
    if (!number)
        return call.returns(false);
    value = *number;
    return call.returns(true);
}

void SetAttributeValue(IXMLDOMNode* node, const wchar_t* name, const VxString& value) {
    const HostCall call("VxUt::SetAttributeValue", {node, name, value});
    if (call.failed() || name == nullptr)
        raise(call);
    workbench::writeAttribute(xmlNodeOf(node), toUtf8(name), toUtf8(value));
}

void SetAttributeValue(IXMLDOMNode* node, const wchar_t* name, std::int32_t value) {
    const HostCall call("VxUt::SetAttributeValue", {node, name, value});
    if (call.failed() || name == nullptr)
        raise(call);
    workbench::writeAttribute(xmlNodeOf(node), toUtf8(name), std::to_string(value));
}

}  // namespace VxUt
