#include "workbench/drawing/records/current.h"

#include "workbench/drawing/database/database.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(CurrentRecord, TilesAreNumberedFromTwo) {
    const Database db;
    Record<Current> current;
    EXPECT_TRUE(current.data().tileMode);
    EXPECT_THROW(current.setProperty("modelViewport", 1, db), ValueError);
    EXPECT_THROW(current.setProperty("layer", "Nowhere", db), ValueError);
    EXPECT_EQ(current.data().modelViewport, 2);
}

}  // namespace
}  // namespace workbench::drawing
