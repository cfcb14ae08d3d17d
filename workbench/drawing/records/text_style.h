#pragma once

#include "workbench/drawing/database/property.h"

#include <string>
#include <vector>

namespace workbench::drawing {

/// How text is written.
struct TextStyle {
    static constexpr RecordKind kKind = RecordKind::TextStyle;
    static const std::vector<Property<TextStyle>>& properties();

    std::string name;
    std::string font = "simplex";
    double height = 0.0;  // drawing units; 0 lets each text have its own height
    double widthFactor = 1.0;
    double oblique = 0.0;  // radians

    friend bool operator==(const TextStyle&, const TextStyle&) = default;
};

/// Name of the text style that a new drawing has.
inline constexpr const char* kStandardTextStyle = "Standard";

}  // namespace workbench::drawing
