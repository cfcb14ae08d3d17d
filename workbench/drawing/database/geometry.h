#pragma once

#include <cmath>

namespace workbench::drawing {

/// A point or a direction in the drawing's units.
struct Vec3 {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    friend bool operator==(const Vec3&, const Vec3&) = default;
    friend Vec3 operator+(const Vec3& a, const Vec3& b) {
        return {a.x + b.x, a.y + b.y, a.z + b.z};
    }
    friend Vec3 operator-(const Vec3& a, const Vec3& b) {
        return {a.x - b.x, a.y - b.y, a.z - b.z};
    }
};

inline double distance(const Vec3& a, const Vec3& b) {
    return std::hypot(a.x - b.x, a.y - b.y, a.z - b.z);
}

}  // namespace workbench::drawing
