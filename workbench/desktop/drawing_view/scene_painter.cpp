#include "workbench/desktop/drawing_view/scene_painter.h"

#include "workbench/desktop/drawing_view/paint_order.h"

#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <utility>

namespace workbench::desktop {

namespace {

constexpr double kAmbient = 0.45;  // of the light that reaches every face
constexpr double kOutline = 0.7;   // brightness of an outline to that of its face

QColor lit(const QColor& colour, double brightness) {
    const auto part = [brightness](int value) {
        return std::clamp(static_cast<int>(std::lround(value * brightness)), 0, 255);
    };
    return {part(colour.red()), part(colour.green()), part(colour.blue())};
}

/// From over the right shoulder.
Vec3 lightOf(const Camera& camera) {
    const SightAxes& axes = camera.axes();
    return unit(scaled(axes.right, 0.4) + scaled(axes.up, 0.6) + scaled(axes.forward, -0.7));
}

/// The shapes of a scene that lie before the eye, with what each is painted with.
class Picture {
public:
    explicit Picture(const Camera& camera) : m_camera(camera), m_light(lightOf(camera)) {}

    void add(const SceneFace& face) {
        // Both sides of a face are lit.
        const double brightness = kAmbient + (1.0 - kAmbient) * std::abs(dot(face.normal, m_light));
        const QColor colour = lit(face.colour, brightness);
        add(m_camera.beforeEye(face.corners), face.normal, {lit(colour, kOutline), colour});
    }
    void add(const SceneLine& line) {
        add(m_camera.lineBeforeEye(line.from, line.to), {}, {line.colour, {}});
    }

    void paint(QPainter& painter) const {
        for (const std::size_t each : paintOrder(m_shapes, m_camera)) {
            const QPolygonF& outline = m_shapes[each].outline;
            painter.setPen(m_inks[each].outline);
            painter.setBrush(m_inks[each].face);
            if (outline.size() == 2)
                painter.drawLine(outline[0], outline[1]);
            else
                painter.drawPolygon(outline);
        }
    }

private:
    struct Ink {
        QColor outline;
        QColor face;
    };

    void add(std::vector<Vec3> corners, const Vec3& normal, const Ink& ink) {
        if (corners.size() < 2)
            return;
        QPolygonF outline;
        outline.reserve(static_cast<qsizetype>(corners.size()));
        for (const Vec3& corner : corners)
            outline.append(m_camera.place(corner));
        m_shapes.push_back({std::move(corners), normal, std::move(outline)});
        m_inks.push_back(ink);
    }

    const Camera& m_camera;
    Vec3 m_light;
    std::vector<PlacedShape> m_shapes;
    std::vector<Ink> m_inks;  // by shape
};

}  // namespace

void paintScene(QPainter& painter, const Scene& scene, const Camera& camera) {
    Picture picture(camera);
    for (const SceneFace& face : scene.faces)
        picture.add(face);
    for (const SceneLine& line : scene.lines)
        picture.add(line);
    picture.paint(painter);
}

}  // namespace workbench::desktop
