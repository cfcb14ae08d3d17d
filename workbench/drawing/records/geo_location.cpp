#include "workbench/drawing/records/geo_location.h"

namespace workbench::drawing {

const std::vector<Property<GeoLocation>>& GeoLocation::properties() {
    using Geo = GeoLocation;
    static const std::vector<Property<Geo>> kProperties{
        property<Geo, &Geo::latitude>("latitude").within(-90.0, 90.0),
        property<Geo, &Geo::longitude>("longitude").within(-180.0, 180.0),
        property<Geo, &Geo::elevation>("elevation").within(-1.0e6, 1.0e6),
        property<Geo, &Geo::northDirection>("northDirection").within(-7.0, 7.0),
        property<Geo, &Geo::timeZone>("timeZone").within(-13000, 14000),
    };
    return kProperties;
}

}  // namespace workbench::drawing
