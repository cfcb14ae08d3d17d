#pragma once

/// The lens of a perspective view, in millimetres, on the slider and as an angle.

constexpr int kLensSliderLowest = 0;
constexpr int kLensSliderHighest = 2500;
constexpr double kShortestLens = 0.786;
constexpr double kLongestLens = 100000.0;
constexpr double kDefaultLens = 50.0;

/// The limits of a field of view that may be entered, in radians: 0.005 and 175 degrees.
constexpr double kNarrowestAngle = 0.005 * 3.14159265358979323846 / 180.0;
constexpr double kWidestAngle = 175.0 * 3.14159265358979323846 / 180.0;

/// The lens at a slider position.
double SliderToLens(int position);
/// The slider position of a lens.
///
/// Kept as it is: the two maps are not inverse. Below 15 mm this one drops the shortest lens that the
/// other adds, and up to 200 mm it drops what is below a millimetre, so that a drag snaps to the
/// customary lenses once the view is read back.
int LensToSlider(double lens);

/// The horizontal angle that a lens sees, in radians, on a frame that is 36 mm wide.
double lensToAngle(double lens);
/// The lens that sees an angle.
double angleToLens(double angle);

/// A width and a height in drawing units.
struct ViewField {
    double width;
    double height;
};
/// What a lens shows of the plane of the target, `distance` away, in a view that is `aspect` times as
/// wide as high.
///
/// Kept as it is: the frame here has a diagonal of 42 mm, which is another frame than that of the
/// angle shown; drawings rely on both.
ViewField viewFieldOf(double distance, double aspect, double lens);
