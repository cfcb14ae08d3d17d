#include "workbench/toolkit/slider_scale.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace workbench {

namespace {

/// value * numerator / denominator, rounded to the nearest; 0 if there is nothing to divide by.
int scaled(int value, int numerator, int denominator) {
    if (denominator <= 0)
        return 0;
    const auto product = std::int64_t{value} * numerator;
    return static_cast<int>((2 * product + denominator) / (2 * std::int64_t{denominator}));
}

}  // namespace

int SliderScale::travel() const {
    return std::max(0, width - kThumbWidth);
}

int SliderScale::clamp(int position) const {
    return std::clamp(position, lowest, std::max(lowest, highest));
}

int SliderScale::middleAt(int position) const {
    return kThumbWidth / 2 + scaled(clamp(position) - lowest, travel(), highest - lowest);
}

int SliderScale::positionAt(int x) const {
    const int along = std::clamp(x - kThumbWidth / 2, 0, travel());
    return clamp(lowest + scaled(along, highest - lowest, travel()));
}

bool SliderScale::isOnThumb(int x, int position) const {
    return std::abs(x - middleAt(position)) <= kThumbWidth / 2;
}

}  // namespace workbench
