#pragma once

#include "workbench/drawing/database/property.h"

#include <string>
#include <vector>

namespace workbench::drawing {

/// What a layer state remembers of one layer.
struct SavedLayer {
    Ref<RecordKind::Layer> layer;
    Colour colour = Colour::byIndex(7);
    bool on = true;
    bool frozen = false;
    bool locked = false;
    bool plottable = true;
    bool frozenInViewport = false;
    std::string linetype = "Continuous";
    int lineweight = -3;
    int transparency = 0;

    friend bool operator==(const SavedLayer&, const SavedLayer&) = default;
};

/// The settings of the layers at some moment, under a name.
struct LayerState {
    static constexpr RecordKind kKind = RecordKind::LayerState;
    static const std::vector<Property<LayerState>>& properties();

    std::string name;
    std::string description;
    std::vector<SavedLayer> layers;

    friend bool operator==(const LayerState&, const LayerState&) = default;
};

/// Nil when the layer is gone.
Value toValue(const SavedLayer& member, const Database& database);
void fromValue(const Value& value, SavedLayer& member, const Database& database);

}  // namespace workbench::drawing
