#pragma once

#include "workbench/drawing/database/geometry.h"

#include <cmath>

/// What pictures and motions need of vectors.
namespace workbench::desktop {

using drawing::Vec3;

inline Vec3 scaled(const Vec3& a, double by) {
    return {a.x * by, a.y * by, a.z * by};
}
inline double dot(const Vec3& a, const Vec3& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline Vec3 cross(const Vec3& a, const Vec3& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double lengthOf(const Vec3& a) {
    return std::hypot(a.x, a.y, a.z);
}
/// Of length 1; the zero vector stays.
inline Vec3 unit(const Vec3& a) {
    const double length = lengthOf(a);
    return length > 0.0 ? scaled(a, 1.0 / length) : a;
}
/// `a` turned about an axis of length 1 by radians.
inline Vec3 turned(const Vec3& a, const Vec3& axis, double by) {
    const double cosine = std::cos(by);
    return scaled(a, cosine) + scaled(cross(axis, a), std::sin(by)) +
           scaled(axis, dot(axis, a) * (1.0 - cosine));
}

}  // namespace workbench::desktop
