#include "workbench/desktop/drawing_view/sheet.h"

#include <QRectF>
#include <algorithm>

namespace workbench::desktop {

namespace {

constexpr double kMargin = 20.0;  // pixels around the paper

double scaleOf(const drawing::Layout& layout, const QSize& room) {
    const double wide = (room.width() - 2.0 * kMargin) / layout.paperWidth;
    const double high = (room.height() - 2.0 * kMargin) / layout.paperHeight;
    return std::max(0.0, std::min(wide, high));
}

}  // namespace

Sheet::Sheet(const drawing::Layout& layout, const QSize& room)
    : m_scale(scaleOf(layout, room)),
      m_place(QPoint(0, 0),
              QSizeF(layout.paperWidth * m_scale, layout.paperHeight * m_scale).toSize()) {
    m_place.moveCenter(QRect(QPoint(0, 0), room).center());
}

QRect Sheet::placeOf(const drawing::Viewport& viewport) const {
    // Millimetres count from the paper's lower left corner, pixels from the upper one.
    const double bottom = m_place.top() + m_place.height();
    const QPointF upperLeft(m_place.left() + viewport.lowerLeft.x * m_scale,
                            bottom - viewport.upperRight.y * m_scale);
    const QPointF lowerRight(m_place.left() + viewport.upperRight.x * m_scale,
                             bottom - viewport.lowerLeft.y * m_scale);
    return QRectF(upperLeft, lowerRight).toRect();
}

}  // namespace workbench::desktop
