#include "workbench/drawing/records/visual_style.h"

#include "workbench/drawing/database/database.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(VisualStyleRecord, SignOfAMagnitudeIsKept) {
    const Database db;
    Record<VisualStyle> style;
    for (const char* name : {"faceOpacity", "edgeOverhang", "edgeJitter", "silhouetteWidth"}) {
        style.setProperty(name, -7, db);
        EXPECT_EQ(style.property(name, db), Value(-7)) << name;
    }
}

TEST(VisualStyleRecord, ModeThatMeansNothingIsKeptToo) {
    const Database db;
    Record<VisualStyle> style;
    style.setProperty("faceColorMode", 4, db);
    EXPECT_EQ(style.data().faceColorMode, 4);
    EXPECT_THROW(style.setProperty("faceColorMode", 32768, db), ValueError);
}

}  // namespace
}  // namespace workbench::drawing
