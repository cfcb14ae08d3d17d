#include "workbench/drawing/lookup.h"

#include "workbench/drawing/drawing.h"
#include "workbench/drawing/path_access.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

class DrawingLookupTest : public testing::Test {
protected:
    void set(const char* path, const Value& value) { setByPath(m_drawing->db, path, value); }

    std::unique_ptr<Drawing> m_drawing = makeNewDrawing();
    Database& m_db = m_drawing->db;
};

TEST_F(DrawingLookupTest, InModelSpaceTheTileIsActive) {
    EXPECT_TRUE(activeLayout(m_db).isNull());
    EXPECT_EQ(activeViewport(m_db), findViewport(m_db, {}, 2));
    EXPECT_FALSE(activeSun(m_db).isNull());
    EXPECT_TRUE(activeBackground(m_db).isNull());
}

TEST_F(DrawingLookupTest, InALayoutItsOwnCurrentViewportIsActive) {
    set("current.tileMode", false);
    const ObjectId layout = m_db.find(RecordKind::Layout, "Layout1");
    EXPECT_EQ(activeLayout(m_db), layout);
    EXPECT_EQ(activeViewport(m_db), findViewport(m_db, layout, 1));
    set("viewports.3", Value::Table{{"locked", true}});
    set("layouts.Layout1.currentViewport", 3);
    EXPECT_EQ(activeViewport(m_db), findViewport(m_db, layout, 3));
    EXPECT_EQ(viewportsOf(m_db, layout).size(), 3U);
}

TEST_F(DrawingLookupTest, ErasedSunShinesNoMore) {
    set("suns.Sun", Value());
    EXPECT_TRUE(activeSun(m_db).isNull());
}

TEST_F(DrawingLookupTest, MissingViewportIsNone) {
    set("current.modelViewport", 9);
    EXPECT_TRUE(activeViewport(m_db).isNull());
    EXPECT_TRUE(activeVisualStyle(m_db).isNull());
}

}  // namespace
}  // namespace workbench::drawing
