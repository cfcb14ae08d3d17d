#include "workbench/desktop/look/shapes.h"

namespace workbench::desktop {

namespace {

void paintTriangle(QPainter& painter, const QPolygonF& corners, const QColor& colour) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(corners);
    painter.restore();
}

}  // namespace

void paintArrowDown(QPainter& painter, QPointF middle, double size, const QColor& colour) {
    paintTriangle(painter,
                  QPolygonF({middle + QPointF(-size, -size / 2), middle + QPointF(size, -size / 2),
                             middle + QPointF(0, size / 2)}),
                  colour);
}

void paintArrowRight(QPainter& painter, QPointF middle, double size, const QColor& colour) {
    paintTriangle(painter,
                  QPolygonF({middle + QPointF(-size / 2, -size), middle + QPointF(-size / 2, size),
                             middle + QPointF(size / 2, 0)}),
                  colour);
}

void paintKeyboardFrame(QPainter& painter, const QRect& around, const QColor& colour) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(around.adjusted(1, 1, -1, -1));
    painter.restore();
}

void paintCross(QPainter& painter, QPointF middle, double size, const QColor& colour) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1.2));
    painter.drawLine(middle + QPointF(-size, -size), middle + QPointF(size, size));
    painter.drawLine(middle + QPointF(-size, size), middle + QPointF(size, -size));
    painter.restore();
}

}  // namespace workbench::desktop
