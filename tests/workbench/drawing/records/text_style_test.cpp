#include "workbench/drawing/records/text_style.h"

#include "workbench/drawing/database/database.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(TextStyleRecord, HeightZeroMeansThatItIsNotFixed) {
    const Database db;
    Record<TextStyle> style;
    EXPECT_EQ(style.data().height, 0.0);
    style.setProperty("height", 2.5, db);
    EXPECT_EQ(style.data().height, 2.5);
    EXPECT_THROW(style.setProperty("height", -0.1, db), ValueError);
    EXPECT_THROW(style.setProperty("widthFactor", 0, db), ValueError);
    EXPECT_EQ(style.data().height, 2.5);
}

}  // namespace
}  // namespace workbench::drawing
