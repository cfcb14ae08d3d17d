#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>
#include <hostapi/xmldom.h>

/// The host's utility library.

/// A text that may stand for a string resource. Plain text here; saved in an XML node in a form that
/// is the library's own.
class VXHOST VxUtResString {
public:
    VxUtResString() = default;
    /// The text as shown.
    const VxString& text() const { return m_text; }
    bool isEmpty() const { return m_text.empty(); }
    void setText(const VxString& text) { m_text = text; }
    void empty() { m_text.clear(); }
    /// Reads the text from a node. Returns 0, and leaves the text empty, if the node holds none.
    BOOL Load(IXMLDOMNode* node);
    /// Writes the text into a node. Raises `VxComError`.
    void Save(IXMLDOMNode* node) const;

private:
    VxString m_text;
};

namespace VxUt {

/// Kind of node made by `AddChildNode`.
constexpr int kElementNode = 1;

/// The system's text for an error of `GetLastError`.
VxString GetSystemErrorMessage(DWORD error);

/// The first child element of a name, exact; null for none. The caller releases it.
IXMLDOMNode* GetChildNode(IXMLDOMNode* node, const wchar_t* name);
/// The child elements in order; the caller releases each.
CTypedPtrArray<IXMLDOMNode*> GetChildNodes(IXMLDOMNode* node);
/// A node's name.
VxString GetNodeName(IXMLDOMNode* node);
/// Adds a child at the end; null if the tree refuses. The caller releases it. Raises `VxComError`.
IXMLDOMNode* AddChildNode(IXMLDOMNode* node, const wchar_t* name, int nodeType);
/// Removes all children. Raises `VxComError`.
void RemoveChildren(IXMLDOMNode* node);
/// Reads an attribute as text; false if it is missing.
bool GetAttributeValue(IXMLDOMNode* node, const wchar_t* name, VxString& value);
/// Reads an attribute as a whole number; false if it is missing or not a number.
bool GetAttributeValue(IXMLDOMNode* node, const wchar_t* name, std::int32_t& value);
/// Writes an attribute. Raises `VxComError`.
void SetAttributeValue(IXMLDOMNode* node, const wchar_t* name, const VxString& value);
/// Writes an attribute as a whole number. Raises `VxComError`.
void SetAttributeValue(IXMLDOMNode* node, const wchar_t* name, std::int32_t value);

}  // namespace VxUt
