#include <hostapi/vxge18.h>

#include <cmath>

const VxGeTol VxGeContext::gTol;

double VxGeVector3d::length() const {
    return std::hypot(x, y, z);
}

VxGeVector3d VxGeVector3d::perpVector() const {
    // A direction is near the Z axis if it leaves it by less than one part in 64.
    constexpr double kNearZ = 1.0 / 64.0;
    const double limit = kNearZ * length();
    if (std::fabs(x) < limit && std::fabs(y) < limit)
        return {z, 0.0, -x};
    return {-y, x, 0.0};
}

VxGeVector3d VxGeVector3d::crossProduct(const VxGeVector3d& other) const {
    return {y * other.z - z * other.y, z * other.x - x * other.z, x * other.y - y * other.x};
}

VxGeVector3d& VxGeVector3d::normalize(const VxGeTol& tolerance) {
    const double size = length();
    if (size > tolerance.equalVector) {
        x /= size;
        y /= size;
        z /= size;
    }
    return *this;
}

bool VxGePoint3d::isEqualTo(const VxGePoint3d& other, const VxGeTol& tolerance) const {
    return (*this - other).length() <= tolerance.equalPoint;
}
