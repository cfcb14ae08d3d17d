#include "palette/panel_storage.h"

#include "core/text.h"
#include "palette/xml_node.h"

#include <cstddef>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace {

constexpr const wchar_t* kPanelSetNode = L"CVxDaPanelSet";
constexpr const wchar_t* kPanelNode = L"CVxDaPanel";
constexpr const wchar_t* kGroupNode = L"ToolPaletteGroupName";
constexpr const wchar_t* kIdAttribute = L"ID";
constexpr const wchar_t* kVisibleAttribute = L"Visible";
constexpr const wchar_t* kMenuGroupAttribute = L"MenuGroupName";

/// The records by menu group and ID, both exact; of two with one name the first counts. Good while
/// no record moves.
class RecordIndex {
public:
    explicit RecordIndex(PanelRecords& records) {
        m_records.reserve(records.size());
        for (const auto& record : records)
            m_records.try_emplace({record->menuGroup, record->id}, record.get());
    }

    /// Null for none.
    PanelRecord* find(std::wstring_view menuGroup, std::wstring_view id) const {
        const auto found = m_records.find({menuGroup, id});
        return found == m_records.end() ? nullptr : found->second;
    }

private:
    using Name = std::pair<std::wstring_view, std::wstring_view>;
    struct Hash {
        std::size_t operator()(const Name& name) const {
            const std::hash<std::wstring_view> hash;
            return 31 * hash(name.first) + hash(name.second);
        }
    };

    std::unordered_map<Name, PanelRecord*, Hash> m_records;
};

NodePtr childNode(IXMLDOMNode* node, const wchar_t* name) {
    return NodePtr(VxUt::GetChildNode(node, name));
}

NodePtr addElement(IXMLDOMNode* node, const wchar_t* name) {
    return NodePtr(VxUt::AddChildNode(node, name, VxUt::kElementNode));
}

VxUtResString readGroup(IXMLDOMNode* panelNode) {
    VxUtResString group;
    if (const NodePtr node = childNode(panelNode, kGroupNode))
        group.Load(node.get());
    return group;
}

void readPanel(IXMLDOMNode* node, const RecordIndex& records) {
    if (!equalNoCase(VxUt::GetNodeName(node), kPanelNode))
        return;
    VxString id;
    if (!VxUt::GetAttributeValue(node, kIdAttribute, id))
        return;
    VxString menuGroup;
    if (!VxUt::GetAttributeValue(node, kMenuGroupAttribute, menuGroup))
        return;
    std::int32_t visible = 1;
    if (!VxUt::GetAttributeValue(node, kVisibleAttribute, visible))
        visible = 1;
    const VxUtResString group = readGroup(node);

    // A saved panel that the host no longer has is forgotten.
    PanelRecord* record = records.find(menuGroup, id);
    if (record == nullptr)
        return;
    record->toolPaletteGroup = group;
    if (record->panel != nullptr)
        record->panel->setToolPaletteGroup(group);
    record->visible = visible != 0;
}

bool writePanel(IXMLDOMNode* parent, const PanelRecord& record) {
    // The context menu of a panel changes only the panel's own copy.
    const VxUtResString group =
        record.panel == nullptr ? record.toolPaletteGroup : record.panel->toolPaletteGroup();
    if (record.id.empty() || record.menuGroup.empty())
        return true;
    const NodePtr node = addElement(parent, kPanelNode);
    if (node == nullptr)
        return false;
    VxUt::SetAttributeValue(node.get(), kIdAttribute, record.id);
    // Kept as it is: a panel that was never made is saved as hidden, whatever its flag says,
    // because the flag of such a panel tells of nothing that the user has seen.
    const std::int32_t visible = record.panel != nullptr && record.visible ? 1 : 0;
    VxUt::SetAttributeValue(node.get(), kVisibleAttribute, visible);
    VxUt::SetAttributeValue(node.get(), kMenuGroupAttribute, record.menuGroup);
    if (group.isEmpty())
        return true;
    const NodePtr groupNode = addElement(node.get(), kGroupNode);
    if (groupNode != nullptr)
        group.Save(groupNode.get());
    return true;
}

}  // namespace

void readSavedPanels(IXMLDOMNode* node, PanelRecords& records) {
    const NodePtr panelSet = childNode(node, kPanelSetNode);
    if (panelSet == nullptr)
        return;
    const RecordIndex index(records);
    for (IXMLDOMNode* child : VxUt::GetChildNodes(panelSet.get())) {
        readPanel(NodePtr(child).get(), index);
    }
}

bool writeSavedPanels(IXMLDOMNode* node, const PanelRecords& records) {
    const NodePtr panelSet = addElement(node, kPanelSetNode);
    if (panelSet == nullptr)
        return false;
    for (const auto& record : records) {
        if (!writePanel(panelSet.get(), *record))
            return false;
    }
    return true;
}
