#include "workbench/desktop/drawing_view/scene_painter.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace workbench::desktop {

namespace {

constexpr double kAmbient = 0.45;  // of the light that reaches every face
constexpr double kOutline = 0.7;   // brightness of an outline to that of its face

/// A face or a line, whichever is not null.
struct Placed {
    double depth = 0.0;
    const SceneFace* face = nullptr;
    const SceneLine* line = nullptr;
};

QColor lit(const QColor& colour, double brightness) {
    const auto part = [brightness](int value) {
        return std::clamp(static_cast<int>(std::lround(value * brightness)), 0, 255);
    };
    return {part(colour.red()), part(colour.green()), part(colour.blue())};
}

double middleDepth(const SceneFace& face, const Camera& camera) {
    double sum = 0.0;
    for (const Vec3& corner : face.corners)
        sum += camera.depthOf(corner);
    return sum / static_cast<double>(face.corners.size());
}

std::vector<Placed> farthestFirst(const Scene& scene, const Camera& camera) {
    std::vector<Placed> placed;
    placed.reserve(scene.faces.size() + scene.lines.size());
    for (const SceneFace& face : scene.faces)
        placed.push_back({middleDepth(face, camera), &face, nullptr});
    for (const SceneLine& line : scene.lines)
        placed.push_back(
            {(camera.depthOf(line.from) + camera.depthOf(line.to)) / 2.0, nullptr, &line});
    std::stable_sort(placed.begin(), placed.end(),
                     [](const Placed& a, const Placed& b) { return a.depth > b.depth; });
    return placed;
}

/// From over the right shoulder.
Vec3 lightOf(const Camera& camera) {
    const SightAxes& axes = camera.axes();
    return unit(scaled(axes.right, 0.4) + scaled(axes.up, 0.6) + scaled(axes.forward, -0.7));
}

void paintFace(QPainter& painter, const SceneFace& face, const Camera& camera, const Vec3& light) {
    const std::vector<Vec3> corners = camera.beforeEye(face.corners);
    if (corners.size() < 3)
        return;
    QPolygonF outline;
    outline.reserve(static_cast<qsizetype>(corners.size()));
    for (const Vec3& corner : corners)
        outline.append(camera.place(corner));
    // Both sides of a face are lit.
    const double brightness = kAmbient + (1.0 - kAmbient) * std::abs(dot(face.normal, light));
    const QColor colour = lit(face.colour, brightness);
    painter.setPen(lit(colour, kOutline));
    painter.setBrush(colour);
    painter.drawPolygon(outline);
}

void paintLine(QPainter& painter, const SceneLine& line, const Camera& camera) {
    const std::vector<Vec3> ends = camera.lineBeforeEye(line.from, line.to);
    if (ends.empty())
        return;
    painter.setPen(line.colour);
    painter.drawLine(camera.place(ends[0]), camera.place(ends[1]));
}

}  // namespace

void paintScene(QPainter& painter, const Scene& scene, const Camera& camera) {
    const Vec3 light = lightOf(camera);
    for (const Placed& each : farthestFirst(scene, camera)) {
        if (each.face != nullptr)
            paintFace(painter, *each.face, camera, light);
        else
            paintLine(painter, *each.line, camera);
    }
}

}  // namespace workbench::desktop
