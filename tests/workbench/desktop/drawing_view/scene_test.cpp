#include "workbench/desktop/drawing_view/scene.h"

#include "workbench/drawing/drawing.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/entity.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/drawing/records/viewport.h"

#include <gtest/gtest.h>

namespace workbench::desktop {
namespace {

using drawing::Colour;
using drawing::Entity;
using drawing::EntityType;
using drawing::Layer;
using drawing::Writing;

class SceneTest : public testing::Test {
protected:
    SceneTest() {
        Layer layer;
        layer.name = "Roof";
        layer.colour = Colour::trueColour(200, 100, 0);
        m_layer = data().add(layer).id;
        Entity face;
        face.type = EntityType::Face;
        face.layer.id = m_layer;
        face.points = {{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0}};
        m_face = data().add(face).id;
    }

    drawing::Database& data() { return m_drawing->db; }
    drawing::ObjectId port() { return drawing::activeViewport(data()); }
    Scene scene(int fading = 50) {
        return sceneOf(data(), port(), {fading, QColor(0, 0, 0), QColor(250, 250, 250)});
    }
    QColor colour(int fading = 50) { return scene(fading).faces.at(0).colour; }

    std::unique_ptr<drawing::Drawing> m_drawing = drawing::makeNewDrawing();
    drawing::ObjectId m_layer;
    drawing::ObjectId m_face;
};

TEST_F(SceneTest, AFaceHasItsCornersItsNormalAndItsLayersColour) {
    const Scene shown = scene();
    ASSERT_EQ(shown.faces.size(), 1U);
    EXPECT_EQ(shown.faces[0].corners.size(), 4U);
    EXPECT_EQ(shown.faces[0].normal, (Vec3{0, 0, 1}));
    EXPECT_EQ(shown.faces[0].colour, QColor(200, 100, 0));
    EXPECT_TRUE(shown.lines.empty());
}

TEST_F(SceneTest, ALineIsARunOfPieces) {
    Entity line;
    line.layer.id = m_layer;
    line.points = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}};
    data().add(line);
    EXPECT_EQ(scene().lines.size(), 2U);
}

TEST_F(SceneTest, AnEntitysOwnColourComesFirst) {
    Writing<Entity>(data(), m_face)->colour = Colour::trueColour(1, 2, 3);
    EXPECT_EQ(colour(), QColor(1, 2, 3));
    Writing<Entity>(data(), m_face)->colour = Colour::byIndex(1);
    EXPECT_EQ(colour(), QColor(255, 0, 0));
    Writing<Entity>(data(), m_face)->colour = Colour::byIndex(7);
    EXPECT_EQ(colour(), QColor(250, 250, 250)) << "the ink";
}

TEST_F(SceneTest, LayersThatAreOffOrFrozenVanish) {
    Writing<Layer>(data(), m_layer)->on = false;
    EXPECT_TRUE(scene().faces.empty());
    Writing<Layer>(data(), m_layer)->on = true;
    Writing<Layer>(data(), m_layer)->frozen = true;
    EXPECT_TRUE(scene().faces.empty());
    Writing<Layer>(data(), m_layer)->frozen = false;
    EXPECT_EQ(scene().faces.size(), 1U);
    Writing<drawing::Viewport>(data(), port())->frozenLayers.push_back({m_layer});
    EXPECT_TRUE(scene().faces.empty());
}

TEST_F(SceneTest, LockedLayersFadeIntoTheBackgroundUnlessFadingIsOff) {
    Writing<Layer>(data(), m_layer)->locked = true;
    EXPECT_EQ(colour(50), QColor(100, 50, 0));
    EXPECT_EQ(colour(90), QColor(20, 10, 0));
    EXPECT_EQ(colour(0), QColor(200, 100, 0));
    EXPECT_EQ(colour(-50), QColor(200, 100, 0));
}

TEST_F(SceneTest, ErasedEntitiesAreGone) {
    Writing<Entity>(data(), m_face).erase();
    EXPECT_TRUE(scene().faces.empty());
}

}  // namespace
}  // namespace workbench::desktop
