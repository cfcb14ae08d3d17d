#include "workbench/drawing/records/viewport.h"

#include "workbench/drawing/database/database.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(ViewportRecord, SpaceAndNumberTellWhatItIs) {
    Viewport viewport;
    EXPECT_TRUE(viewport.isTile());
    EXPECT_FALSE(viewport.isPaper());
    viewport.layout = ObjectId(1, 1);
    EXPECT_FALSE(viewport.isTile() || viewport.isPaper());
    viewport.number = 1;
    EXPECT_TRUE(viewport.isPaper());
}

TEST(ViewportRecord, ExposureKeepsToItsRanges) {
    const Database db;
    Record<Viewport> viewport;
    viewport.setProperty("brightness", -10, db);
    viewport.setProperty("toneBrightness", 200, db);
    EXPECT_THROW(viewport.setProperty("contrast", 10.5, db), ValueError);
    EXPECT_THROW(viewport.setProperty("toneContrast", 101, db), ValueError);
    EXPECT_EQ(viewport.data().tone.brightness, 200.0);
}

}  // namespace
}  // namespace workbench::drawing
