#pragma once

#include "workbench/drawing/database/property.h"

#include <vector>

namespace workbench::drawing {

/// Where on earth the drawing stands.
struct GeoLocation {
    static constexpr RecordKind kKind = RecordKind::GeoLocation;
    static const std::vector<Property<GeoLocation>>& properties();

    double latitude = 37.795;     // degrees, south negative
    double longitude = -122.394;  // degrees, west negative
    double elevation = 0.0;       // metres
    double northDirection = 0.0;  // radians from the Y axis, clockwise
    int timeZone = -8000;         // thousandths of an hour ahead of universal time

    friend bool operator==(const GeoLocation&, const GeoLocation&) = default;
};

}  // namespace workbench::drawing
