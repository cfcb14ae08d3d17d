#include "workbench/toolkit/bar_place.h"

#include "workbench/toolkit/held_node.h"
#include "workbench/xml/xml_node_operations.h"

#include <cstdint>
#include <string>

namespace workbench {

namespace {

constexpr const char* kPlaceNode = "Place";
constexpr const char* kStand = "Stand";
constexpr const char* kEdge = "Edge";
constexpr const char* kAnchored = "Anchored";

struct Side {
    const char* name;
    int CRect::*coordinate;
};
constexpr Side kSides[] = {{"Left", &CRect::left},
                           {"Top", &CRect::top},
                           {"Right", &CRect::right},
                           {"Bottom", &CRect::bottom}};

/// A whole number in an attribute; nothing if it is missing or none.
std::optional<std::int32_t> readNumber(const XmlNode& node, const char* name) {
    const std::optional<std::string> text = readAttribute(node, name);
    return text ? parseWholeNumber(*text) : std::nullopt;
}

}  // namespace

std::optional<BarPlace> loadBarPlace(IXMLDOMNode* node) {
    XmlNode* const child = findChild(xmlNodeOf(node), kPlaceNode);
    const HeldNode held(child);
    if (child == nullptr)
        return {};
    const std::optional<std::string> stand = readAttribute(*child, kStand);
    const std::optional<std::string> edge = readAttribute(*child, kEdge);
    if (!stand || !edge)
        return {};
    BarPlace result;
    result.floating = *stand == "floating";
    result.edge = *edge == "left" ? Edge::Left : Edge::Right;
    result.anchored = readNumber(*child, kAnchored).value_or(0) != 0;
    for (const Side& side : kSides) {
        const std::optional<std::int32_t> value = readNumber(*child, side.name);
        if (!value)
            return {};
        result.rect.*side.coordinate = *value;
    }
    if (result.rect.Width() <= 0 || result.rect.Height() <= 0)
        return {};
    return result;
}

void saveBarPlace(IXMLDOMNode* node, const BarPlace& place) {
    const XmlNode& parent = xmlNodeOf(node);
    XmlNode* const present = findChild(parent, kPlaceNode);
    XmlNode* const target = present != nullptr ? present : addChild(parent, kPlaceNode);
    const HeldNode held(target);
    writeAttribute(*target, kStand, place.floating ? "floating" : "docked");
    writeAttribute(*target, kEdge, place.edge == Edge::Left ? "left" : "right");
    writeAttribute(*target, kAnchored, place.anchored ? "1" : "0");
    for (const Side& side : kSides)
        writeAttribute(*target, side.name, std::to_string(place.rect.*side.coordinate));
}

}  // namespace workbench
