#pragma once

/// The step length and the step rate of the navigation tools on their sliders. A position beyond the
/// range of a whole number is its nearer end.

/// The slider position of a step length in drawing units.
int StepSizeToSlider(double stepSize);
/// The step length at a slider position.
///
/// Kept as it is: the two maps are neither inverse nor continuous, and above position 880 the length
/// moves in whole decades; users know these stops.
double SliderToStepSize(int position);

/// The slider position of a number of steps a second.
int StepsPerSecToSlider(double stepsPerSec);
/// The number of steps a second at a slider position; 300 gives a hair more than 30.
double SliderToStepsPerSec(int position);
