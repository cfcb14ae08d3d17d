#include "workbench/desktop/drawing_view/drawing_view.h"

#include "workbench/desktop/app/pump.h"
#include "workbench/desktop/drawing_view/camera.h"
#include "workbench/desktop/drawing_view/scene_painter.h"
#include "workbench/desktop/drawing_view/view_motion.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/document.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace workbench::desktop {

namespace {

using drawing::ObjectId;
using drawing::ViewParameters;
using drawing::Viewport;

constexpr int kWheelNotch = 120;
constexpr int kSheetMargin = 20;  // pixels around a layout's sheet

const Viewport* activePort(const Document& document) {
    return document.data().look<Viewport>(drawing::activeViewport(document.data()));
}

/// A layout's sheet on the screen: millimetres to pixels.
class Sheet {
public:
    Sheet(const Viewport& paper, const QSize& room)
        : m_scale(std::min((room.width() - 2.0 * kSheetMargin) / paper.view.width,
                           (room.height() - 2.0 * kSheetMargin) / paper.view.height)),
          m_place(QRectF(0, 0, paper.view.width * m_scale, paper.view.height * m_scale).toRect()) {
        m_place.moveCenter(QRect(QPoint(0, 0), room).center());
    }
    const QRect& place() const { return m_place; }
    QRect placeOf(const Viewport& port) const {
        const QPointF corner(port.lowerLeft.x * m_scale, port.upperRight.y * m_scale);
        const QSizeF size((port.upperRight.x - port.lowerLeft.x) * m_scale,
                          (port.upperRight.y - port.lowerLeft.y) * m_scale);
        return QRectF(QPointF(m_place.left() + corner.x(), m_place.bottom() - corner.y()), size)
            .toRect();
    }

private:
    double m_scale;
    QRect m_place;
};

}  // namespace

DrawingView::DrawingView(Pump& pump, Document& document, const Look& look)
    : m_pump(pump),
      m_document(&document),
      m_look(&look) {
    setAccessibleName(QStringLiteral("Drawing view"));
    setFocusPolicy(Qt::NoFocus);
    m_document->data().addReactor(this);
}

DrawingView::~DrawingView() {
    if (m_document != nullptr)
        m_document->data().removeReactor(this);
}

void DrawingView::setFading(int percent) {
    if (percent == m_fading)
        return;
    m_fading = percent;
    changed();
}

void DrawingView::setLook(const Look& look) {
    m_look = &look;
    changed();
}

void DrawingView::objectAppended(const drawing::DbObject& /*object*/) {
    changed();
}

void DrawingView::objectModified(const drawing::DbObject& object) {
    // Others than these change nothing that the scene is made of.
    switch (object.kind()) {
    case drawing::RecordKind::Entity:
    case drawing::RecordKind::Layer:
    case drawing::RecordKind::Viewport:
    case drawing::RecordKind::Layout:
    case drawing::RecordKind::Current:
        changed();
        break;
    default:
        break;
    }
}

void DrawingView::objectErased(const drawing::DbObject& /*object*/, bool /*erasing*/) {
    changed();
}

void DrawingView::databaseGoodbye(const drawing::Database& /*database*/) {
    m_document = nullptr;
    m_drag.reset();
}

void DrawingView::changed() {
    m_scene.reset();
    update();
}

const Scene& DrawingView::scene() {
    if (!m_scene) {
        const drawing::Database& database = m_document->data();
        m_scene = sceneOf(database, drawing::activeViewport(database),
                          {m_fading, m_look->drawing, m_look->drawingLines});
    }
    return *m_scene;
}

std::optional<ViewParameters> DrawingView::shown() const {
    if (m_drag)
        return m_drag->now;
    const Viewport* const port = activePort(*m_document);
    return port == nullptr ? std::nullopt : std::optional(port->view);
}

void DrawingView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), m_look->drawing);
    if (m_document == nullptr)
        return;
    if (!drawing::activeLayout(m_document->data()).isNull())
        paintSheet(painter);
    else if (const std::optional<ViewParameters> view = shown())
        paintModel(painter, *view, rect());
}

void DrawingView::paintModel(QPainter& painter, const ViewParameters& view, const QRect& place) {
    painter.save();
    painter.setClipRect(place);
    painter.translate(place.topLeft());
    paintScene(painter, scene(), Camera(view, place.size()));
    painter.restore();
}

/// The sheet of a layout with its viewports on it.
void DrawingView::paintSheet(QPainter& painter) {
    const drawing::Database& database = m_document->data();
    const ObjectId layout = drawing::activeLayout(database);
    const auto* paper =
        database.look<Viewport>(drawing::findViewport(database, layout, Viewport::kPaperNumber));
    if (paper == nullptr)
        return;
    const Sheet sheet(*paper, size());
    painter.fillRect(sheet.place(), m_look->field);
    painter.setPen(m_look->line);
    painter.drawRect(sheet.place());
    const ObjectId active = drawing::activeViewport(database);
    for (const ObjectId id : drawing::viewportsOf(database, layout)) {
        const Viewport& port = *database.look<Viewport>(id);
        if (port.isPaper() || !port.on)
            continue;
        const QRect place = sheet.placeOf(port);
        paintModel(painter, id == active && m_drag ? m_drag->now : port.view, place);
        painter.setPen(QPen(id == active ? m_look->accent : m_look->line, id == active ? 2 : 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(place);
    }
}

bool DrawingView::canMove() const {
    const Viewport* const port = m_document == nullptr ? nullptr : activePort(*m_document);
    return port != nullptr && !port->locked && !port->isPaper();
}

/// Writes the view once: it is one step of undo and of the viewport's history.
void DrawingView::write(const ViewParameters& view) {
    m_pump.act([this, &view] {
        drawing::Database& database = m_document->data();
        const drawing::UndoGroup group(database.undoLog(), "VIEW");
        drawing::Writing<Viewport> writing(database, drawing::activeViewport(database));
        if (!writing || writing->view == view)
            return;
        writing->view = view;
        writing->appliedView = {};
    });
}

void DrawingView::mousePressEvent(QMouseEvent* event) {
    const bool isMiddle = event->button() == Qt::MiddleButton;
    if ((event->button() != Qt::LeftButton && !isMiddle) || !canMove())
        return;
    const ViewParameters view = activePort(*m_document)->view;
    m_drag = Drag{isMiddle || event->modifiers().testFlag(Qt::ShiftModifier), event->position(),
                  view, view};
}

void DrawingView::mouseMoveEvent(QMouseEvent* event) {
    if (!m_drag)
        return;
    const QPointF way = event->position() - m_drag->from;
    m_drag->now =
        m_drag->pans ? panned(m_drag->before, way, size()) : orbited(m_drag->before, way, size());
    update();
}

void DrawingView::mouseReleaseEvent(QMouseEvent* /*event*/) {
    if (!m_drag)
        return;
    const Drag drag = *m_drag;
    m_drag.reset();
    if (drag.now != drag.before)
        write(drag.now);
}

void DrawingView::wheelEvent(QWheelEvent* event) {
    event->accept();
    m_wheelRest += event->angleDelta().y();
    const int notches = m_wheelRest / kWheelNotch;
    m_wheelRest -= notches * kWheelNotch;
    if (notches != 0 && canMove() && !m_drag)
        write(zoomed(activePort(*m_document)->view, notches));
}

}  // namespace workbench::desktop
