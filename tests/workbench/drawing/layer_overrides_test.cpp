#include "workbench/drawing/layer_overrides.h"

#include "workbench/drawing/drawing.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/path_access.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

class LayerOverridesTest : public testing::Test {
protected:
    LayerOverridesTest() {
        set("layers.Walls", Value::Table{{"colour", 3}});
        m_walls = m_db.find(RecordKind::Layer, "Walls");
        set("current.tileMode", false);
    }

    void set(const char* path, const Value& value) { setByPath(m_db, path, value); }
    const Viewport& viewport() { return *m_db.look<Viewport>(activeViewport(m_db)); }
    const Layer& walls() { return *m_db.look<Layer>(m_walls); }

    std::unique_ptr<Drawing> m_drawing = makeNewDrawing();
    Database& m_db = m_drawing->db;
    ObjectId m_walls;
};

TEST_F(LayerOverridesTest, WhatIsOverriddenLooksOtherInTheViewportAlone) {
    EXPECT_FALSE(activeViewportHasOverrides(m_db));
    set("viewports.current.layerOverrides",
        Value::List{Value::Table{{"layer", "Walls"}, {"colour", 1}, {"lineweight", 50}}});
    EXPECT_TRUE(activeViewportHasOverrides(m_db));
    EXPECT_TRUE(hasOverride(viewport(), m_walls));
    const Layer look = lookIn(viewport(), m_walls, walls());
    EXPECT_EQ(look.colour, Colour::byIndex(1));
    EXPECT_EQ(look.lineweight, 50);
    EXPECT_EQ(look.linetype, walls().linetype);
    EXPECT_EQ(walls().colour, Colour::byIndex(3));
    set("current.tileMode", true);
    EXPECT_FALSE(activeViewportHasOverrides(m_db));
}

TEST_F(LayerOverridesTest, OverridesOfLayersThatAreGoneDoNotCount) {
    set("viewports.current.layerOverrides",
        Value::List{Value::Table{{"layer", "Walls"}, {"colour", 1}}});
    set("layers.Walls", Value());
    EXPECT_FALSE(activeViewportHasOverrides(m_db));
}

TEST_F(LayerOverridesTest, WhatTheLayerHasItselfNeedsNoOverride) {
    Viewport port = viewport();
    Layer wanted = walls();
    wanted.transparency = 40;
    overrideLook(port, m_walls, walls(), wanted);
    ASSERT_EQ(port.layerOverrides.size(), 1U);
    EXPECT_EQ(port.layerOverrides[0].transparency, 40);
    EXPECT_EQ(port.layerOverrides[0].colour, std::nullopt);
    overrideLook(port, m_walls, walls(), walls());
    EXPECT_TRUE(port.layerOverrides.empty());
}

}  // namespace
}  // namespace workbench::drawing
