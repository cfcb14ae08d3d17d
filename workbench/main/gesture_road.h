#pragma once

#include "workbench/host/workbench.h"

#include <iosfwd>
#include <string>

namespace workbench {

/// Opens a drawing with the dashboard and prints the window tree; then drags the slider of the
/// locked layers' fading to 40, lets it rest, and prints each step of the road: gesture, messages,
/// host calls, variable, what the control shows. Throws InputError for a drawing that can't be
/// taken or a module that can't be loaded.
void showGestureRoad(Workbench& workbench, const std::string& drawing, std::ostream& out);

}  // namespace workbench
