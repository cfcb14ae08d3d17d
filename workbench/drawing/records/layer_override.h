#pragma once

#include "workbench/drawing/database/property.h"

#include <optional>
#include <string>

namespace workbench::drawing {

/// How a layer looks in one viewport alone; what has no value is as in the layer itself.
struct LayerOverride {
    Ref<RecordKind::Layer> layer;
    std::optional<Colour> colour;
    std::optional<std::string> linetype;
    std::optional<int> lineweight;
    std::optional<int> transparency;

    bool isEmpty() const { return !colour && !linetype && !lineweight && !transparency; }

    friend bool operator==(const LayerOverride&, const LayerOverride&) = default;
};

/// A table with `layer` and what has a value; nil when the layer is gone.
Value toValue(const LayerOverride& member, const Database& database);
void fromValue(const Value& value, LayerOverride& member, const Database& database);

}  // namespace workbench::drawing
