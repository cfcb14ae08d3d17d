#include "workbench/desktop/drawing_view/paint_order.h"

#include <QRectF>
#include <algorithm>
#include <cmath>
#include <numeric>

namespace workbench::desktop {

namespace {

constexpr double kTouching = 1.0e-6;  // of the distance to the target: this near a plane is on it
constexpr double kTouchingPixels = 1.0e-6;

// A redraw must stay quick, so comparing ends when it has cost as much as this many boxes.
constexpr long kMostEffort = 6'000'000;
constexpr long kEffortOfShapes = 40;  // to compare two shapes, in boxes

/// What there is to know of a shape before it is compared.
struct Extent {
    QRectF box;
    double depth = 0.0;  // of the middle
    Vec3 toEye;          // the normal on the eye's side; zero if there is no telling
};

double middleDepth(const PlacedShape& shape, const Camera& camera) {
    double sum = 0.0;
    for (const Vec3& corner : shape.corners)
        sum += camera.depthOf(corner);
    return sum / static_cast<double>(shape.corners.size());
}

Extent extentOf(const PlacedShape& shape, const Camera& camera, double touching) {
    const double side = dot(shape.normal, camera.wayToEye(shape.corners.front()));
    const double sign = side > touching ? 1.0 : side < -touching ? -1.0 : 0.0;
    return {shape.outline.boundingRect(), middleDepth(shape, camera), scaled(shape.normal, sign)};
}

/// The sides of a line on which an outline has points.
struct Sides {
    bool left = false;
    bool right = false;
};

Sides sidesOf(const QPolygonF& outline, const QPointF& start, const QPointF& way) {
    const double touching = kTouchingPixels * (std::abs(way.x()) + std::abs(way.y()));
    Sides sides;
    for (const QPointF& point : outline) {
        const double side = way.x() * (point.y() - start.y()) - way.y() * (point.x() - start.x());
        sides.left = sides.left || side > touching;
        sides.right = sides.right || side < -touching;
        if (sides.left && sides.right)
            break;
    }
    return sides;
}

/// True if a line along an edge of `a` keeps the two apart in the picture.
bool isEdgeBetween(const QPolygonF& a, const QPolygonF& b) {
    QPointF start = a.back();
    for (const QPointF& end : a) {
        const QPointF way = end - start;
        const Sides others = sidesOf(b, start, way);
        if (!way.isNull() && !(others.left && others.right)) {
            const Sides own = sidesOf(a, start, way);
            if (!(own.left && others.left) && !(own.right && others.right))
                return true;
        }
        start = end;
    }
    return false;
}

class Sorter {
public:
    Sorter(const std::vector<PlacedShape>& shapes, const Camera& camera)
        : m_shapes(shapes),
          m_touching(kTouching * camera.distance()),
          m_behind(shapes.size()),
          m_byDepth(shapes.size()) {
        m_extents.reserve(shapes.size());
        for (const PlacedShape& shape : shapes)
            m_extents.push_back(extentOf(shape, camera, m_touching));
        std::iota(m_byDepth.begin(), m_byDepth.end(), std::size_t(0));
        std::stable_sort(m_byDepth.begin(), m_byDepth.end(), [this](std::size_t a, std::size_t b) {
            return m_extents[a].depth > m_extents[b].depth;
        });
    }

    std::vector<std::size_t> sorted() { return compareAll() ? farthestFirst() : m_byDepth; }

private:
    /// Compares all whose boxes lie over each other. False if that became too much.
    bool compareAll() {
        std::vector<std::size_t> byLeft = m_byDepth;
        std::sort(byLeft.begin(), byLeft.end(), [this](std::size_t a, std::size_t b) {
            return m_extents[a].box.left() < m_extents[b].box.left();
        });
        for (auto each = byLeft.begin(); each != byLeft.end(); ++each) {
            const QRectF& box = m_extents[*each].box;
            for (auto other = each + 1; other != byLeft.end(); ++other) {
                const QRectF& next = m_extents[*other].box;
                if (next.left() >= box.right())
                    break;
                ++m_effort;
                if (next.top() < box.bottom() && box.top() < next.bottom())
                    compare(*each, *other);
                if (m_effort > kMostEffort)
                    return false;
            }
        }
        return true;
    }

    void compare(std::size_t a, std::size_t b) {
        m_effort += kEffortOfShapes;
        bool isBehind = isFartherThan(a, b);
        if (isBehind == isFartherThan(b, a)) {
            // Both are farther when they only touch, and neither when they cross. A line that is
            // drawn on a face is to be seen.
            if (!isBehind || isLine(a) == isLine(b))
                return;
            isBehind = isLine(b);
        }
        if (isEdgeBetween(m_shapes[a].outline, m_shapes[b].outline) ||
            isEdgeBetween(m_shapes[b].outline, m_shapes[a].outline))
            return;
        if (isBehind)
            m_behind[b].push_back(a);
        else
            m_behind[a].push_back(b);
    }

    bool isLine(std::size_t shape) const { return m_shapes[shape].normal == Vec3(); }

    bool isFartherThan(std::size_t a, std::size_t b) const {
        return liesOn(-1.0, a, b) || liesOn(1.0, b, a);
    }

    /// Whether a shape lies wholly on one side of a face's plane: 1 for the eye's, -1 for the other.
    bool liesOn(double side, std::size_t shape, std::size_t face) const {
        const Vec3 normal = scaled(m_extents[face].toEye, side);
        if (normal == Vec3())
            return false;
        const Vec3& start = m_shapes[face].corners.front();
        const std::vector<Vec3>& corners = m_shapes[shape].corners;
        return std::all_of(corners.begin(), corners.end(), [&](const Vec3& corner) {
            return dot(normal, corner - start) >= -m_touching;
        });
    }

    /// Each shape after all that are behind it; where these go round in a ring, one stays out.
    std::vector<std::size_t> farthestFirst() {
        std::vector<std::size_t> order;
        order.reserve(m_shapes.size());
        std::vector<bool> reached(m_shapes.size());
        std::vector<std::size_t> waiting;
        const auto reach = [&](std::size_t shape) {
            if (!reached[shape])
                waiting.push_back(shape);
            reached[shape] = true;
        };
        for (const std::size_t start : m_byDepth) {
            reach(start);
            while (!waiting.empty()) {
                const std::size_t shape = waiting.back();
                if (m_behind[shape].empty()) {
                    order.push_back(shape);
                    waiting.pop_back();
                    continue;
                }
                const std::size_t behind = m_behind[shape].back();
                m_behind[shape].pop_back();
                reach(behind);
            }
        }
        return order;
    }

    const std::vector<PlacedShape>& m_shapes;
    double m_touching;                               // drawing units
    std::vector<Extent> m_extents;                   // by shape, as the next
    std::vector<std::vector<std::size_t>> m_behind;  // those that a shape covers
    std::vector<std::size_t> m_byDepth;              // the farthest first
    long m_effort = 0;
};

}  // namespace

std::vector<std::size_t> paintOrder(const std::vector<PlacedShape>& shapes, const Camera& camera) {
    return Sorter(shapes, camera).sorted();
}

}  // namespace workbench::desktop
