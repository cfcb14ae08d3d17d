#pragma once

#include "workbench/drawing/database/property.h"

#include <string>
#include <vector>

namespace workbench::drawing {

/// What stands behind the model in a view.
struct Background {
    static constexpr RecordKind kKind = RecordKind::Background;
    static const std::vector<Property<Background>>& properties();

    static constexpr int kSolid = 5;  // one colour, which a view has without any background too
    static constexpr int kGradient = 7;
    static constexpr int kImage = 9;
    static constexpr int kSky = 11;

    std::string name;
    int type = kSolid;
    Colour top = Colour::trueColour(255, 255, 255);
    Colour middle = Colour::trueColour(235, 240, 246);
    Colour bottom = Colour::trueColour(214, 224, 236);
    std::string image;  // file name, for an image

    friend bool operator==(const Background&, const Background&) = default;
};

}  // namespace workbench::drawing
