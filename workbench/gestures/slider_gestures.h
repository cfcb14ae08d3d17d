#pragma once

#include <hostapi/types.h>

#include <vector>

/// What a user does with a slider.
namespace workbench {
class Toolkit;
}

namespace workbench::gestures {

/// Takes the thumb, unless it is held already, and moves it through the positions; the button stays
/// down. Each move is one mouse message; where the slider has more positions than pixels the control
/// key is held for a fine move. False for a disabled slider.
bool dragSlider(Toolkit& toolkit, HWND slider, const std::vector<int>& positions);
/// Lets the thumb go. False if no thumb is held.
bool releaseSlider(Toolkit& toolkit, HWND slider);

}  // namespace workbench::gestures
