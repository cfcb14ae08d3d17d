#include "workbench/drawing/records/layout.h"

#include "workbench/drawing/database/database.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(LayoutRecord, PaperIsTheCurrentViewportAtFirst) {
    const Database db;
    Record<Layout> layout;
    EXPECT_EQ(layout.data().currentViewport, 1);
    EXPECT_THROW(layout.setProperty("currentViewport", 0, db), ValueError);
    EXPECT_THROW(layout.setProperty("paperWidth", 0, db), ValueError);
}

}  // namespace
}  // namespace workbench::drawing
