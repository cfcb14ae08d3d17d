#include "workbench/drawing/records/layer.h"

#include "workbench/drawing/database/database.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(LayerRecord, FreshLayerIsOnAndFree) {
    const Layer layer;
    EXPECT_TRUE(layer.on);
    EXPECT_TRUE(layer.plottable);
    EXPECT_FALSE(layer.frozen || layer.locked);
}

TEST(LayerRecord, WeightAndTransparencyKeepToTheirRanges) {
    const Database db;
    Record<Layer> layer;
    layer.setProperty("lineweight", 211, db);
    layer.setProperty("transparency", 90, db);
    EXPECT_THROW(layer.setProperty("lineweight", 212, db), ValueError);
    EXPECT_THROW(layer.setProperty("lineweight", -4, db), ValueError);
    EXPECT_THROW(layer.setProperty("transparency", -1, db), ValueError);
    EXPECT_EQ(layer.data().lineweight, 211);
    EXPECT_EQ(layer.data().transparency, 90);
}

}  // namespace
}  // namespace workbench::drawing
