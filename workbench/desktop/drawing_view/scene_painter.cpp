#include "workbench/desktop/drawing_view/scene_painter.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace workbench::desktop {

namespace {

constexpr double kAmbient = 0.45;  // of the light that reaches every face
constexpr double kOutline = 0.7;   // brightness of an outline to that of its face

struct Placed {
    double depth = 0.0;
    const SceneFace* face = nullptr;
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
    placed.reserve(scene.faces.size());
    for (const SceneFace& face : scene.faces)
        placed.push_back({middleDepth(face, camera), &face});
    std::stable_sort(placed.begin(), placed.end(),
                     [](const Placed& a, const Placed& b) { return a.depth > b.depth; });
    return placed;
}

/// From over the right shoulder.
Vec3 lightOf(const Camera& camera) {
    const SightAxes& axes = camera.axes();
    return unit(scaled(axes.right, 0.4) + scaled(axes.up, 0.6) + scaled(axes.forward, -0.7));
}

}  // namespace

void paintScene(QPainter& painter, const Scene& scene, const Camera& camera) {
    const Vec3 light = lightOf(camera);
    QPolygonF outline;
    for (const Placed& each : farthestFirst(scene, camera)) {
        const std::vector<Vec3> corners = camera.beforeEye(each.face->corners);
        if (corners.size() < 3)
            continue;
        outline.clear();
        for (const Vec3& corner : corners)
            outline.append(camera.place(corner));
        // Both sides of a face are lit.
        const double brightness =
            kAmbient + (1.0 - kAmbient) * std::abs(dot(each.face->normal, light));
        const QColor colour = lit(each.face->colour, brightness);
        painter.setPen(lit(colour, kOutline));
        painter.setBrush(colour);
        painter.drawPolygon(outline);
    }
    for (const SceneLine& line : scene.lines) {
        const std::vector<Vec3> ends = camera.lineBeforeEye(line.from, line.to);
        if (ends.empty())
            continue;
        painter.setPen(line.colour);
        painter.drawLine(camera.place(ends[0]), camera.place(ends[1]));
    }
}

}  // namespace workbench::desktop
