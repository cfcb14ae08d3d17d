#pragma once

#include "workbench/drawing/database/property.h"

#include <string>
#include <vector>

namespace workbench::drawing {

/// A layer. Whether it is frozen in a single viewport is the viewport's own business.
struct Layer {
    static constexpr RecordKind kKind = RecordKind::Layer;
    static const std::vector<Property<Layer>>& properties();

    std::string name;
    std::string description;
    Colour colour = Colour::byIndex(7);
    bool on = true;
    bool frozen = false;
    bool locked = false;
    bool plottable = true;
    bool frozenInNewViewports = false;
    bool reconciled = true;  // false: came after the drawing's layers were looked over
    std::string linetype = "Continuous";
    int lineweight = -3;   // hundredths of a millimetre; -3 is the default weight
    int transparency = 0;  // percent, 0 to 90

    friend bool operator==(const Layer&, const Layer&) = default;
};

/// Name of the layer that every drawing has.
inline constexpr const char* kLayerZero = "0";

}  // namespace workbench::drawing
