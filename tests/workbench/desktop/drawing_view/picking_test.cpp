#include "workbench/desktop/drawing_view/picking.h"

#include "workbench/drawing/drawing.h"
#include "workbench/drawing/records/entity.h"
#include "workbench/drawing/records/layer.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <utility>

namespace workbench::desktop {
namespace {

using drawing::Entity;
using drawing::EntityType;
using drawing::ObjectId;

constexpr double kLow = 0.0;
constexpr double kHigh = 1.0;

/// Seen from above, 10 by 10 drawing units on 100 by 100 pixels: (x, y) lies at (10 x, 100 - 10 y).
class PickingTest : public testing::Test {
protected:
    ObjectId add(EntityType type, std::vector<Vec3> points) {
        Entity entity;
        entity.type = type;
        entity.points = std::move(points);
        entity.layer.id = m_drawing->db.first(drawing::RecordKind::Layer);
        return m_drawing->db.add(entity).id;
    }
    ObjectId addSquare(double from, double to, double z) {
        return add(EntityType::Face, {{from, from, z}, {to, from, z}, {to, to, z}, {from, to, z}});
    }
    Scene scene() { return sceneOf(m_drawing->db, {}, {}); }
    Camera camera() {
        drawing::ViewParameters view;
        view.target = {5, 5, 0};
        view.eye = {5, 5, 10};
        view.up = {0, 1, 0};
        view.width = view.height = 10;
        view.perspective = false;
        return {view, {100, 100}};
    }
    ObjectId at(QPointF place) { return entityAt(scene(), camera(), place); }
    std::vector<ObjectId> in(const QRectF& window, PickWindow kind) {
        return entitiesIn(scene(), camera(), window, kind);
    }

    std::unique_ptr<drawing::Drawing> m_drawing = drawing::makeNewDrawing();
};

TEST_F(PickingTest, AClickTakesTheUppermost) {
    const ObjectId low = addSquare(1, 5, kLow);
    const ObjectId high = addSquare(3, 7, kHigh);
    EXPECT_EQ(at({20, 80}), low);
    EXPECT_EQ(at({40, 60}), high);
    EXPECT_EQ(at({60, 40}), high);
    EXPECT_TRUE(at({90, 10}).isNull());
}

TEST_F(PickingTest, ALineIsHitALittleBesideItToo) {
    const ObjectId line = add(EntityType::Line, {{1, 5, 0}, {9, 5, 0}});
    EXPECT_EQ(at({50, 50}), line);
    EXPECT_EQ(at({50, 53}), line);
    EXPECT_TRUE(at({50, 56}).isNull());
    EXPECT_TRUE(at({98, 50}).isNull());
}

TEST_F(PickingTest, AWindowTakesWhatLiesInItOrWhatItTouches) {
    const ObjectId square = addSquare(2, 4, kLow);
    const ObjectId line = add(EntityType::Line, {{1, 3, 0}, {9, 3, 0}});
    EXPECT_EQ(in({15, 55, 30, 30}, PickWindow::Inside), std::vector<ObjectId>{square});
    EXPECT_EQ(in({15, 55, 30, 30}, PickWindow::Touching), (std::vector<ObjectId>{square, line}));
    EXPECT_EQ(in({60, 60, 10, 20}, PickWindow::Touching), std::vector<ObjectId>{line});
    EXPECT_EQ(in({60, 60, 10, 20}, PickWindow::Inside), std::vector<ObjectId>{});
    EXPECT_EQ(in({25, 65, 5, 4}, PickWindow::Touching), std::vector<ObjectId>{square});
}

TEST_F(PickingTest, AnEntityOfSeveralShapesLiesInAWindowWithAllOfThem) {
    const ObjectId bent = add(EntityType::Line, {{1, 1, 0}, {3, 1, 0}, {3, 9, 0}});
    EXPECT_EQ(in({5, 80, 40, 15}, PickWindow::Inside), std::vector<ObjectId>{});
    EXPECT_EQ(in({5, 5, 40, 90}, PickWindow::Inside), std::vector<ObjectId>{bent});
}

TEST_F(PickingTest, WhatIsNotShownIsNotPicked) {
    addSquare(2, 8, kLow);
    drawing::Writing<drawing::Layer>(m_drawing->db, m_drawing->db.first(drawing::RecordKind::Layer))
        ->on = false;
    EXPECT_TRUE(at({50, 50}).isNull());
    EXPECT_EQ(in({0, 0, 100, 100}, PickWindow::Touching), std::vector<ObjectId>{});
}

TEST_F(PickingTest, OnlyChosenEntitiesAreMarked) {
    const ObjectId square = addSquare(2, 8, kLow);
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    const QImage before = image;
    QPainter painter(&image);
    paintChosen(painter, scene(), camera(), {}, Qt::red);
    EXPECT_EQ(image, before);
    paintChosen(painter, scene(), camera(), {square}, Qt::red);
    painter.end();
    EXPECT_NE(image, before);
    EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::white));
}

}  // namespace
}  // namespace workbench::desktop
