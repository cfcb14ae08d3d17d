#include "nav3d/lens_mapping.h"

#include <cmath>

namespace {

constexpr int kFirstMillimetre = 150;  // from here on a position is a tenth of a millimetre
constexpr int kLastMillimetre = 2000;
constexpr double kShortStep = 0.09476;  // millimetres a position below
constexpr double kLongStep = 199.6;     // millimetres a position above
constexpr double kPositionsPerMillimetre = 10.0;
constexpr double kShortRangeEnd = 15.0;
constexpr double kMiddleRangeEnd = 200.0;

constexpr double kFrameHalfWidth = 18.0;  // millimetres
constexpr double kFrameDiagonal = 42.0;   // millimetres

}  // namespace

double SliderToLens(int position) {
    if (position < kFirstMillimetre)
        return position * kShortStep + kShortestLens;
    if (position <= kLastMillimetre)
        return position / kPositionsPerMillimetre;
    return (position - kLastMillimetre) * kLongStep + kMiddleRangeEnd;
}

int LensToSlider(double lens) {
    if (lens > kLongestLens)
        return kLensSliderHighest;
    if (lens < kShortestLens)
        return kLensSliderLowest;
    if (lens < kShortRangeEnd)
        return static_cast<int>(lens / kShortStep);
    if (lens <= kMiddleRangeEnd)
        return static_cast<int>(lens) * 10;
    return kLastMillimetre - 1 + static_cast<int>(lens / kLongStep);
}

double lensToAngle(double lens) {
    return 2.0 * std::atan(kFrameHalfWidth / lens);
}

double angleToLens(double angle) {
    return kFrameHalfWidth / std::tan(angle * 0.5);
}

ViewField viewFieldOf(double distance, double aspect, double lens) {
    const double height = distance * kFrameDiagonal / (std::sqrt(aspect * aspect + 1.0) * lens);
    return {height * aspect, height};
}
