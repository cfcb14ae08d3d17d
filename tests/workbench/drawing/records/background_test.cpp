#include "workbench/drawing/records/background.h"

#include "workbench/drawing/database/database.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(BackgroundRecord, TypesAreNumbers) {
    const Database db;
    Record<Background> background;
    EXPECT_EQ(background.property("type", db), Value(5));
    background.setProperty("type", 11, db);
    EXPECT_EQ(background.data().type, Background::kSky);
    EXPECT_THROW(background.setProperty("type", "sky", db), ValueError);
}

}  // namespace
}  // namespace workbench::drawing
