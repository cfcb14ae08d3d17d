#pragma once

#include "workbench/drawing/database/property.h"

#include <string>
#include <vector>

namespace workbench::drawing {

/// The sky that goes with a sun.
struct SkyParameters {
    bool illumination = false;  // the sky gives light, apart from being seen
    double intensity = 1.0;
    double haze = 0.0;
    double horizonHeight = 0.0;
    double diskScale = 4.0;
    Colour nightColor = Colour::trueColour(10, 12, 26);
    Colour groundColor = Colour::trueColour(96, 92, 82);

    friend bool operator==(const SkyParameters&, const SkyParameters&) = default;
};

/// A sun: when it shines, where it stands and how bright it is. Where it stands is kept, not
/// worked out here.
struct Sun {
    static constexpr RecordKind kKind = RecordKind::Sun;
    static const std::vector<Property<Sun>>& properties();

    std::string name;
    bool on = false;
    DateTime date;
    bool daylightSaving = false;
    double altitude = 45.0;         // degrees above the horizon
    double azimuth = 200.0;         // degrees from north, clockwise
    Vec3 direction{0.0, 0.0, 1.0};  // towards the sun, of length 1
    double intensity = 1.0;
    Colour color = Colour::trueColour(255, 250, 236);
    bool shadows = true;
    SkyParameters sky;

    friend bool operator==(const Sun&, const Sun&) = default;
};

}  // namespace workbench::drawing
