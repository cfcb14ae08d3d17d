#pragma once

#include <hostapi/window/geometry.h>
#include <hostapi/xmldom.h>

#include <optional>

namespace workbench {

/// An edge of the main frame at which bars dock.
enum class Edge { Left, Right };

/// Where a bar stands.
struct BarPlace {
    bool floating = false;
    Edge edge = Edge::Right;  ///< Where it docks, now or when it is docked again.
    bool anchored = false;    ///< Docked as a thin strip.
    CRect rect;  ///< Floating: the small frame on the screen. Docked: only the width counts.

    friend bool operator==(const BarPlace&, const BarPlace&) = default;
};

/// Reads a place from below a node; nothing if there is none or it makes no sense. Raises
/// `VxComError` for a node of none of the host's documents.
std::optional<BarPlace> loadBarPlace(IXMLDOMNode* node);
/// Writes a place below a node, in place of an earlier one. Raises `VxComError` as reading does.
void saveBarPlace(IXMLDOMNode* node, const BarPlace& place);

}  // namespace workbench
