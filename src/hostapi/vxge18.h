#pragma once

#include <hostapi/export.h>

/// The host's geometry library, as far as the dashboard uses it.

/// How far apart two things may be that count as equal.
struct VxGeTol {
    double equalPoint = 1.0e-10;   ///< Distance of two points.
    double equalVector = 1.0e-10;  ///< Length below which a vector counts as null.
};

/// What the geometry library goes by where nothing else is told.
struct VXHOST VxGeContext {
    /// The global tolerance.
    static const VxGeTol gTol;
};

/// A direction with a length in space.
struct VXHOST VxGeVector3d {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    double length() const;
    /// A vector perpendicular to this one, of the same rule for every direction: in the XY plane,
    /// unless this one is near the Z axis.
    VxGeVector3d perpVector() const;
    VxGeVector3d crossProduct(const VxGeVector3d& other) const;
    /// Makes the length 1; a vector that counts as null stays as it is.
    VxGeVector3d& normalize(const VxGeTol& tolerance = VxGeContext::gTol);
};

/// A place in space, in drawing units.
struct VXHOST VxGePoint3d {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    /// Whether the two are no further apart than points that count as equal.
    bool isEqualTo(const VxGePoint3d& other, const VxGeTol& tolerance = VxGeContext::gTol) const;
};

/// The way from the second point to the first.
inline VxGeVector3d operator-(const VxGePoint3d& to, const VxGePoint3d& from) {
    return {to.x - from.x, to.y - from.y, to.z - from.z};
}
