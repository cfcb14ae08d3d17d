#include "workbench/desktop/drawing_view/picking.h"

#include "workbench/desktop/drawing_view/paint_order.h"

#include <QLineF>
#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <algorithm>
#include <map>
#include <utility>

namespace workbench::desktop {

namespace {

using drawing::ObjectId;

constexpr double kReach = 4.0;  // pixels beside a line that still hit it
constexpr double kMarkWidth = 2.0;

/// The shapes of a scene that lie before the eye, with the entity of each.
struct PlacedScene {
    std::vector<PlacedShape> shapes;
    std::vector<ObjectId> entities;  // by shape
    std::vector<ObjectId> cut;       // entities of which a part lies behind the eye

    void add(const Camera& camera, const std::vector<Vec3>& whole, std::vector<Vec3> corners,
             const Vec3& normal, ObjectId entity) {
        if (corners.size() < 2 || corners != whole)
            cut.push_back(entity);
        if (corners.size() < 2)
            return;
        QPolygonF outline;
        for (const Vec3& corner : corners)
            outline.append(camera.place(corner));
        shapes.push_back({std::move(corners), normal, std::move(outline)});
        entities.push_back(entity);
    }
};

PlacedScene placed(const Scene& scene, const Camera& camera) {
    PlacedScene result;
    for (const SceneFace& face : scene.faces)
        result.add(camera, face.corners, camera.beforeEye(face.corners), face.normal, face.entity);
    for (const SceneLine& line : scene.lines)
        result.add(camera, {line.from, line.to}, camera.lineBeforeEye(line.from, line.to), {},
                   line.entity);
    return result;
}

/// What hits a shape.
QPainterPath reachOf(const QPolygonF& outline) {
    QPainterPath path;
    path.addPolygon(outline);
    QPainterPathStroker stroker;
    stroker.setWidth(2.0 * kReach);
    if (outline.size() == 2)
        return stroker.createStroke(path);
    path.closeSubpath();
    return path.united(stroker.createStroke(path));
}

bool touches(const QPolygonF& outline, const QRectF& window) {
    if (outline.size() > 2)
        return outline.intersects(QPolygonF(window));
    if (window.contains(outline[0]) || window.contains(outline[1]))
        return true;
    const QPolygonF frame(window);
    for (qsizetype i = 1; i < frame.size(); ++i) {
        if (QLineF(outline[0], outline[1]).intersects(QLineF(frame[i - 1], frame[i]), nullptr) ==
            QLineF::BoundedIntersection)
            return true;
    }
    return false;
}

bool isInside(const QPolygonF& outline, const QRectF& window) {
    return std::all_of(outline.begin(), outline.end(),
                       [&window](QPointF corner) { return window.contains(corner); });
}

bool contains(const std::vector<ObjectId>& entities, ObjectId id) {
    return std::find(entities.begin(), entities.end(), id) != entities.end();
}

}  // namespace

ObjectId entityAt(const Scene& scene, const Camera& camera, QPointF place) {
    const PlacedScene all = placed(scene, camera);
    const std::vector<std::size_t> order = paintOrder(all.shapes, camera);
    // What was painted last covers the others.
    const auto hit = std::find_if(order.rbegin(), order.rend(), [&](std::size_t shape) {
        return reachOf(all.shapes[shape].outline).contains(place);
    });
    return hit == order.rend() ? ObjectId() : all.entities[*hit];
}

std::vector<ObjectId> entitiesIn(const Scene& scene, const Camera& camera, const QRectF& window,
                                 PickWindow kind) {
    const PlacedScene all = placed(scene, camera);
    std::map<ObjectId, bool> taken;  // whether each entity is, as far as its shapes were seen
    for (std::size_t i = 0; i < all.shapes.size(); ++i) {
        const QPolygonF& outline = all.shapes[i].outline;
        if (kind == PickWindow::Touching)
            taken[all.entities[i]] |= touches(outline, window);
        else
            taken.try_emplace(all.entities[i], !contains(all.cut, all.entities[i])).first->second &=
                isInside(outline, window);
    }
    std::vector<ObjectId> entities;
    for (const auto& [id, is] : taken) {
        if (is)
            entities.push_back(id);
    }
    return entities;
}

void paintChosen(QPainter& painter, const Scene& scene, const Camera& camera,
                 const std::vector<ObjectId>& chosen, const QColor& ink) {
    if (chosen.empty())
        return;
    painter.setPen(QPen(ink, kMarkWidth, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    const PlacedScene all = placed(scene, camera);
    for (std::size_t i = 0; i < all.shapes.size(); ++i) {
        if (contains(chosen, all.entities[i]))
            painter.drawPolygon(all.shapes[i].outline);
    }
}

}  // namespace workbench::desktop
