#include "workbench/drawing/records/geo_location.h"

#include "workbench/drawing/database/database.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(GeoLocationRecord, StaysOnTheGlobe) {
    const Database db;
    Record<GeoLocation> location;
    location.setProperty("latitude", -90, db);
    location.setProperty("longitude", 180, db);
    EXPECT_THROW(location.setProperty("latitude", 90.1, db), ValueError);
    EXPECT_THROW(location.setProperty("longitude", -180.1, db), ValueError);
    EXPECT_EQ(location.data().latitude, -90.0);
}

}  // namespace
}  // namespace workbench::drawing
