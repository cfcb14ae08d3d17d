#include "workbench/desktop/drawing_view/drawing_view.h"

#include "workbench/desktop/drawing_view/camera.h"
#include "workbench/desktop/drawing_view/picking.h"
#include "workbench/desktop/drawing_view/scene_painter.h"
#include "workbench/desktop/drawing_view/sheet.h"
#include "workbench/desktop/drawing_view/view_fit.h"
#include "workbench/desktop/drawing_view/view_motion.h"
#include "workbench/desktop/pump/pump.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/layout.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/document.h"
#include "workbench/toolkit/mouse.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

namespace workbench::desktop {

namespace {

using drawing::ObjectId;
using drawing::ViewParameters;
using drawing::Viewport;

constexpr int kWheelNotch = 120;
constexpr double kPixelsOfANotch = 20.0;  // of a drag that zooms
constexpr double kPixelsOfAClick = 4.0;   // that a hand may move in it

/// The viewport that the mouse moves: the current one, unless it is locked or the sheet of a
/// layout. Null if there is none.
ObjectId movablePort(const drawing::Database& database) {
    const ObjectId id = drawing::activeViewport(database);
    const auto* port = database.look<Viewport>(id);
    return port == nullptr || port->locked || port->isPaper() ? ObjectId() : id;
}

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
    m_pick.reset();
    m_scenes.clear();
    update();
}

void DrawingView::changed() {
    m_scenes.clear();
    if (m_drag && !isDragStill())
        m_drag.reset();
    update();
}

/// False once the viewport under the mouse was locked or left, or another has moved its view.
bool DrawingView::isDragStill() const {
    const drawing::Database& database = m_document->data();
    return movablePort(database) == m_drag->port &&
           database.look<Viewport>(m_drag->port)->view == m_drag->before;
}

const Scene& DrawingView::sceneIn(ObjectId port) {
    const auto made = m_scenes.find(port);
    if (made != m_scenes.end())
        return made->second;
    const drawing::Database& database = m_document->data();
    const bool onPaper = !drawing::activeLayout(database).isNull();
    const SceneSettings settings{m_fading, onPaper ? m_look->field : m_look->drawing,
                                 m_look->drawingLines};
    return m_scenes[port] = sceneOf(database, port, settings);
}

ViewParameters DrawingView::shownIn(ObjectId port) const {
    return m_drag && m_drag->port == port ? m_drag->now
                                          : m_document->data().look<Viewport>(port)->view;
}

void DrawingView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), m_look->drawing);
    if (m_document == nullptr)
        return;
    const drawing::Database& database = m_document->data();
    const ObjectId layout = drawing::activeLayout(database);
    const ObjectId port = drawing::activeViewport(database);
    if (!layout.isNull())
        paintSheet(painter, layout);
    else if (!port.isNull())
        paintModel(painter, port);
    if (m_isPicking && m_pick) {
        painter.setPen(QPen(m_look->accent, 1, Qt::DashLine));
        painter.drawRect(QRectF(m_pick->from, m_pick->now).normalized());
    }
}

QRect DrawingView::placeOf(ObjectId port) const {
    const drawing::Database& database = m_document->data();
    const Viewport& viewport = *database.look<Viewport>(port);
    return viewport.isTile()
               ? rect()
               : Sheet(*database.look<drawing::Layout>(viewport.layout), size()).placeOf(viewport);
}

void DrawingView::paintModel(QPainter& painter, ObjectId port) {
    const QRect place = placeOf(port);
    if (place.isEmpty())
        return;
    painter.save();
    painter.setClipRect(place);
    painter.translate(place.topLeft());
    const Camera camera(shownIn(port), place.size());
    paintScene(painter, sceneIn(port), camera);
    paintChosen(painter, sceneIn(port), camera, m_chosen, m_look->accent);
    painter.restore();
}

/// The sheet of a layout with its viewports on it.
void DrawingView::paintSheet(QPainter& painter, ObjectId layout) {
    const drawing::Database& database = m_document->data();
    const Sheet sheet(*database.look<drawing::Layout>(layout), size());
    painter.fillRect(sheet.place(), m_look->field);
    painter.setPen(m_look->line);
    painter.drawRect(sheet.place());
    const ObjectId active = drawing::activeViewport(database);
    for (const ObjectId id : drawing::viewportsOf(database, layout)) {
        const Viewport& port = *database.look<Viewport>(id);
        if (port.isPaper() || !port.on)
            continue;
        paintModel(painter, id);
        painter.setPen(QPen(id == active ? m_look->accent : m_look->line, id == active ? 2 : 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(sheet.placeOf(port));
    }
}

/// Writes the view once: it is one step of undo and of the viewport's history.
void DrawingView::write(ObjectId port, const ViewParameters& view) {
    if (view == shownIn(port))
        return;
    m_pump.act([this, port, &view] {
        drawing::Database& database = m_document->data();
        const drawing::UndoGroup group(database.undoLog(), "VIEW");
        drawing::Writing<Viewport> writing(database, port);
        if (!writing)
            return;
        writing->view = view;
        writing->appliedView = {};
    });
}

void DrawingView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && !m_isPointing)
        beginPick(*event);
    if (m_isPicking && m_pick)
        return;
    if (m_onPressed)
        m_onPressed(event->position());
    const bool isMiddle = event->button() == Qt::MiddleButton;
    if (m_isPointing && event->button() == Qt::LeftButton) {
        point(event->position());
        return;
    }
    if ((event->button() != Qt::LeftButton && !isMiddle) || m_document == nullptr || m_drag)
        return;
    const ObjectId port = movablePort(m_document->data());
    if (port.isNull())
        return;
    const ViewParameters view = shownIn(port);
    const bool pans = isMiddle || event->modifiers().testFlag(Qt::ShiftModifier);
    m_drag =
        Drag{port, event->button(), pans ? DragMode::Pan : m_mode, event->position(), view, view};
}

void DrawingView::setPointing(bool pointing) {
    if (pointing == m_isPointing)
        return;
    m_isPointing = pointing;
    setCursor(pointing ? Qt::CrossCursor : Qt::ArrowCursor);
}

void DrawingView::setPicking(bool picking) {
    m_isPicking = picking;
    m_pick.reset();
    setCursor(picking ? Qt::CrossCursor : Qt::ArrowCursor);
    update();
}

void DrawingView::setChosen(std::vector<ObjectId> chosen) {
    if (chosen == m_chosen)
        return;
    m_chosen = std::move(chosen);
    update();
}

bool DrawingView::Pick::isClick() const {
    return QLineF(from, now).length() < kPixelsOfAClick;
}

void DrawingView::beginPick(const QMouseEvent& event) {
    m_pick =
        Pick{event.position(), event.position(), event.modifiers().testFlag(Qt::ShiftModifier)};
}

/// Outside of picking only a click picks: a drag moves the view.
void DrawingView::endPick() {
    const Pick pick = *std::exchange(m_pick, std::nullopt);
    update();
    const ObjectId port =
        m_document == nullptr ? ObjectId() : drawing::activeViewport(m_document->data());
    const auto* const viewport = port.isNull() ? nullptr : m_document->data().look<Viewport>(port);
    if (viewport != nullptr && !viewport->isPaper() && m_onPicked &&
        (m_isPicking || pick.isClick()))
        pickIn(port, pick);
}

void DrawingView::pickIn(ObjectId port, const Pick& pick) {
    const QRect picture = placeOf(port);
    const Camera camera(shownIn(port), picture.size());
    std::vector<ObjectId> picked;
    if (!pick.isClick()) {
        const QRectF window =
            QRectF(pick.from, pick.now).normalized().translated(-picture.topLeft());
        picked =
            entitiesIn(sceneIn(port), camera, window,
                       pick.from.x() <= pick.now.x() ? PickWindow::Inside : PickWindow::Touching);
    } else if (const ObjectId id = entityAt(sceneIn(port), camera, pick.now - picture.topLeft());
               !id.isNull()) {
        picked.push_back(id);
    }
    m_onPicked(picked, pick.removes);
}

void DrawingView::point(QPointF place) {
    const ObjectId port =
        m_document == nullptr ? ObjectId() : drawing::activeViewport(m_document->data());
    if (port.isNull() || !m_onPointed)
        return;
    const QRect picture = placeOf(port);
    if (!picture.contains(place.toPoint()))
        return;
    const Camera camera(shownIn(port), picture.size());
    if (const std::optional<Vec3> met = camera.pointOnGround(place - picture.topLeft()))
        m_onPointed(*met);
}

/// What a drag makes of the view from its beginning.
ViewParameters DrawingView::dragged(const Drag& drag, QPointF way, QSizeF picture) {
    switch (drag.mode) {
    case DragMode::Pan:
        return panned(drag.before, way, picture);
    case DragMode::Zoom:
        return zoomed(drag.before, -way.y() / kPixelsOfANotch);
    case DragMode::Swivel:
        return swivelled(drag.before, way, picture);
    case DragMode::Walk:
    case DragMode::Fly:
        return walked(drag.before, way, picture, drag.mode == DragMode::Walk);
    case DragMode::Orbit:
        break;
    }
    return orbited(drag.before, way, picture);
}

void DrawingView::mouseMoveEvent(QMouseEvent* event) {
    if (m_pick) {
        m_pick->now = event->position();
        update();
    }
    if (!m_drag)
        return;
    const QPointF way = event->position() - m_drag->from;
    const QSizeF picture = placeOf(m_drag->port).size();
    const ViewParameters next = dragged(*m_drag, way, picture);
    if (m_drag->mode != DragMode::Zoom || isInReason(m_drag->port, next))
        m_drag->now = next;
    update();
}

void DrawingView::mouseReleaseEvent(QMouseEvent* event) {
    if (m_drag && event->button() == m_drag->button) {
        const Drag drag = *std::exchange(m_drag, std::nullopt);
        write(drag.port, drag.now);
    }
    if (m_pick && event->button() == Qt::LeftButton)
        endPick();
}

void DrawingView::wheelEvent(QWheelEvent* event) {
    event->accept();
    m_wheelRest += event->angleDelta().y();
    const int notches = m_wheelRest / kWheelNotch;
    m_wheelRest -= notches * kWheelNotch;
    if (notches == 0 || m_document == nullptr || m_drag)
        return;
    const ObjectId port = movablePort(m_document->data());
    if (port.isNull())
        return;
    const ViewParameters next = zoomed(shownIn(port), notches);
    if (!isInReason(port, next))
        return;
    // A run of the wheel is one step of undo.
    using Gesture = drawing::UndoLog::Gesture;
    const bool continues = event->timestamp() <= m_turnedUntil;
    m_turnedUntil = event->timestamp() + Mouse::kWheelRest;
    Document* const turned = m_document;
    turned->beginGesture(continues ? Gesture::Continue : Gesture::New);
    write(port, next);
    if (m_document == turned)
        turned->endGesture();
}

void DrawingView::fit() {
    const ObjectId port = m_document == nullptr ? ObjectId() : movablePort(m_document->data());
    if (!port.isNull())
        write(port, fitted(shownIn(port), ballAround(sceneIn(port)), placeOf(port).size()));
}

bool DrawingView::isInReason(ObjectId port, const ViewParameters& view) {
    return isZoomInReason(shownIn(port), view, ballAround(sceneIn(port)));
}

}  // namespace workbench::desktop
