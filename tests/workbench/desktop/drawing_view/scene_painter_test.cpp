#include "workbench/desktop/drawing_view/scene_painter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

namespace workbench::desktop {
namespace {

SceneFace squareAt(double y, const QColor& colour) {
    return {{{-5, y, -5}, {5, y, -5}, {5, y, 5}, {-5, y, 5}}, {0, -1, 0}, colour};
}

class ScenePainterTest : public testing::Test {
protected:
    ScenePainterTest() {
        m_view.eye = {0, -10, 0};
        m_view.up = {0, 0, 1};
        m_view.width = 40;
        m_view.height = 40;
    }
    QImage paint() {
        QImage image(80, 80, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        paintScene(painter, m_scene, Camera(m_view, image.size()));
        return image;
    }
    QColor middle() { return paint().pixelColor(40, 40); }

    drawing::ViewParameters m_view;
    Scene m_scene;
};

TEST_F(ScenePainterTest, TheNearerFaceCoversTheOther) {
    m_scene.faces = {squareAt(0, Qt::red), squareAt(3, Qt::blue)};
    EXPECT_GT(middle().red(), 0);
    EXPECT_EQ(middle().blue(), 0);
    m_view.eye = {0, 10, 0};
    EXPECT_GT(middle().blue(), 0);
    EXPECT_EQ(middle().red(), 0);
}

TEST_F(ScenePainterTest, FacesAreShadedByTheirDirection) {
    m_scene.faces = {squareAt(0, QColor(200, 200, 200))};
    const int facing = middle().red();
    m_scene.faces[0].normal = {1, 0, 0};
    EXPECT_LT(middle().red(), facing);
    EXPECT_LE(facing, 200);
}

TEST_F(ScenePainterTest, AFaceHidesTheLineBehindIt) {
    m_scene.faces = {squareAt(0, QColor(200, 200, 200))};
    m_scene.lines = {{{-10, 2, 0}, {10, 2, 0}, Qt::red}};
    const QImage image = paint();
    EXPECT_NE(image.pixelColor(40, 40), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(25, 40), QColor(Qt::red));
}

TEST_F(ScenePainterTest, AnEmptySceneLeavesTheBackground) {
    EXPECT_EQ(middle(), QColor(Qt::white));
}

}  // namespace
}  // namespace workbench::desktop
