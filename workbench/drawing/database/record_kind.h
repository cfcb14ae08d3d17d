#pragma once

#include <cstddef>

namespace workbench::drawing {

/// The kinds of object that a drawing holds. Each has one table.
enum class RecordKind : std::size_t {
    Layer,
    TextStyle,
    VisualStyle,
    Background,
    Sun,
    View,
    Layout,
    Viewport,
    LayerFilters,
    LayerState,
    RenderPreset,
    ActiveRenderSettings,
    RenderGlobals,
    GeoLocation,
    Entity,
    Current,
    Table,  ///< the tables themselves, which are objects too
};

/// How many kinds have records of their own, that is all but `Table`.
constexpr std::size_t kRecordKindCount = static_cast<std::size_t>(RecordKind::Table);

/// A kind in words, in the singular: "layer", "text style".
const char* kindName(RecordKind kind);

}  // namespace workbench::drawing
