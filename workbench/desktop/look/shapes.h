#pragma once

#include <hostapi/types.h>
#include <hostapi/window/geometry.h>

#include <QColor>
#include <QPainter>
#include <QRect>

namespace workbench::desktop {

inline QRect toQt(const CRect& rect) {
    return {rect.left, rect.top, rect.Width(), rect.Height()};
}
inline QColor toQt(COLORREF colour) {
    return {static_cast<int>(colour & 0xff), static_cast<int>(colour >> 8 & 0xff),
            static_cast<int>(colour >> 16 & 0xff)};
}
inline CPoint toHost(const QPoint& point) {
    return {point.x(), point.y()};
}

/// A small triangle that points down, around a middle.
void paintArrowDown(QPainter& painter, QPointF middle, double size, const QColor& colour);
/// The same, pointing to the right.
void paintArrowRight(QPainter& painter, QPointF middle, double size, const QColor& colour);
/// A frame around what the keyboard would use.
void paintKeyboardFrame(QPainter& painter, const QRect& around, const QColor& colour);
/// A small cross, around a middle.
void paintCross(QPainter& painter, QPointF middle, double size, const QColor& colour);

}  // namespace workbench::desktop
