#include "workbench/drawing/records/sun.h"

namespace workbench::drawing {

const std::vector<Property<Sun>>& Sun::properties() {
    static const std::vector<Property<Sun>> kProperties{
        property<Sun, &Sun::name>("name"),
        property<Sun, &Sun::on>("on"),
        property<Sun, &Sun::date>("date"),
        property<Sun, &Sun::date, &DateTime::year>("year").within(1, 9999).notSaved(),
        property<Sun, &Sun::date, &DateTime::month>("month").within(1, 12).notSaved(),
        property<Sun, &Sun::date, &DateTime::day>("day").within(1, 31).notSaved(),
        property<Sun, &Sun::date, &DateTime::hour>("hour").within(0, 23).notSaved(),
        property<Sun, &Sun::date, &DateTime::minute>("minute").within(0, 59).notSaved(),
        property<Sun, &Sun::date, &DateTime::second>("second").within(0, 59).notSaved(),
        property<Sun, &Sun::daylightSaving>("daylightSaving"),
        property<Sun, &Sun::altitude>("altitude").within(-90.0, 90.0),
        property<Sun, &Sun::azimuth>("azimuth").within(-360.0, 360.0),
        property<Sun, &Sun::direction>("direction"),
        property<Sun, &Sun::intensity>("intensity").within(0.0, 1.0e9),
        property<Sun, &Sun::color>("color"),
        property<Sun, &Sun::shadows>("shadows"),
        property<Sun, &Sun::sky, &SkyParameters::illumination>("skyIllumination"),
        property<Sun, &Sun::sky, &SkyParameters::intensity>("skyIntensity").within(0.0, 1.0e9),
        property<Sun, &Sun::sky, &SkyParameters::haze>("skyHaze").within(0.0, 15.0),
        property<Sun, &Sun::sky, &SkyParameters::horizonHeight>("skyHorizonHeight")
            .within(-10.0, 10.0),
        property<Sun, &Sun::sky, &SkyParameters::diskScale>("skyDiskScale").within(0.0, 25.0),
        property<Sun, &Sun::sky, &SkyParameters::nightColor>("skyNightColor"),
        property<Sun, &Sun::sky, &SkyParameters::groundColor>("skyGroundColor"),
    };
    return kProperties;
}

}  // namespace workbench::drawing
