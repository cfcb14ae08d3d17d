#include "workbench/toolkit/bar_place.h"

#include <hostapi/vxut.h>

#include <cstdint>

namespace workbench {

namespace {

constexpr const wchar_t* kPlaceNode = L"Place";
constexpr const wchar_t* kStand = L"Stand";
constexpr const wchar_t* kEdge = L"Edge";
constexpr const wchar_t* kAnchored = L"Anchored";

struct Side {
    const wchar_t* name;
    int CRect::*coordinate;
};
constexpr Side kSides[] = {{L"Left", &CRect::left},
                           {L"Top", &CRect::top},
                           {L"Right", &CRect::right},
                           {L"Bottom", &CRect::bottom}};

/// A node that is released at the end of the scope.
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
    IXMLDOMNode* m_node;  // counted; null for none
};

}  // namespace

std::optional<BarPlace> loadBarPlace(IXMLDOMNode* node) {
    const HeldNode place(VxUt::GetChildNode(node, kPlaceNode));
    VxString stand;
    VxString edge;
    if (place.get() == nullptr || !VxUt::GetAttributeValue(place.get(), kStand, stand) ||
        !VxUt::GetAttributeValue(place.get(), kEdge, edge))
        return {};
    BarPlace result;
    result.floating = stand == L"floating";
    result.edge = edge == L"left" ? Edge::Left : Edge::Right;
    std::int32_t anchored = 0;
    result.anchored = VxUt::GetAttributeValue(place.get(), kAnchored, anchored) && anchored != 0;
    for (const Side& side : kSides) {
        std::int32_t value = 0;
        if (!VxUt::GetAttributeValue(place.get(), side.name, value))
            return {};
        result.rect.*side.coordinate = value;
    }
    if (result.rect.Width() <= 0 || result.rect.Height() <= 0)
        return {};
    return result;
}

bool saveBarPlace(IXMLDOMNode* node, const BarPlace& place) {
    HeldNode present(VxUt::GetChildNode(node, kPlaceNode));
    HeldNode made(present.get() == nullptr
                      ? VxUt::AddChildNode(node, kPlaceNode, VxUt::kElementNode)
                      : nullptr);
    IXMLDOMNode* const target = present.get() == nullptr ? made.get() : present.get();
    if (target == nullptr)
        return false;
    VxUt::SetAttributeValue(target, kStand, VxString(place.floating ? L"floating" : L"docked"));
    VxUt::SetAttributeValue(target, kEdge, VxString(place.edge == Edge::Left ? L"left" : L"right"));
    VxUt::SetAttributeValue(target, kAnchored, std::int32_t{place.anchored ? 1 : 0});
    for (const Side& side : kSides)
        VxUt::SetAttributeValue(target, side.name, std::int32_t{place.rect.*side.coordinate});
    return true;
}

}  // namespace workbench
