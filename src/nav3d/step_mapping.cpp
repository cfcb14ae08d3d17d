#include "nav3d/step_mapping.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int kFirstUnitPosition = 151;
constexpr int kFirstDecadePosition = 881;
constexpr int kPositionsPerDecade = 40;
constexpr double kUnitOffset = 150.0;
constexpr double kDecadeOffset = 880.0;

int truncated(double position) {
    constexpr double kLowest = std::numeric_limits<int>::min();
    constexpr double kHighest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(position, kLowest, kHighest));
}

}  // namespace

int StepSizeToSlider(double stepSize) {
    if (stepSize < 1.0)
        return truncated(1.0 - stepSize / -0.006666666666666667);
    if (stepSize <= 1000.0)
        return truncated(stepSize * 0.73 + kUnitOffset);
    return truncated(kDecadeOffset - (std::log10(stepSize) - 3.0) * -40.0);
}

double SliderToStepSize(int position) {
    if (position < kFirstUnitPosition)
        return position * 0.01;
    if (position < kFirstDecadePosition)
        return (position - kUnitOffset) * 1.36986301369863;
    const int decades = (position - (kFirstDecadePosition - 1)) / kPositionsPerDecade;
    return std::pow(10.0, 3 + decades);
}

int StepsPerSecToSlider(double stepsPerSec) {
    return truncated(stepsPerSec / 0.1);
}

double SliderToStepsPerSec(int position) {
    return position / 290.0 * 29.0;
}
