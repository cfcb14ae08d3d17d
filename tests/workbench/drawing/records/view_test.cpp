#include "workbench/drawing/records/view.h"

#include "workbench/drawing/database/database.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(ViewRecord, HasAViewOfItsOwn) {
    const Database db;
    Record<View> view;
    view.setProperty("eye", Value::List{1, 2, 3}, db);
    view.setProperty("perspective", true, db);
    EXPECT_EQ(view.data().view.eye, (Vec3{1, 2, 3}));
    EXPECT_TRUE(view.data().view.perspective);
    EXPECT_THROW(view.setProperty("width", 0, db), ValueError);
    EXPECT_THROW(view.setProperty("lens", -50, db), ValueError);
}

}  // namespace
}  // namespace workbench::drawing
