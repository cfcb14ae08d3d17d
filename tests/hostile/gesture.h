#pragma once

#include "tests/hostile/attack.h"

#include <functional>
#include <string>
#include <vector>

namespace hostile {

/// Something that a user, the host or another module does, in the course of which the hostile
/// module may strike. It finds afresh what it needs, so it can be made again after the dashboard
/// was built anew; it raises `GestureError` for what it doesn't find any more.
struct Gesture {
    std::string name;
    std::function<void()> make;
};

/// What the test does for the gestures: it loads and unloads.
struct Stage {
    std::function<void()> unload;      ///< The dashboard goes.
    std::function<void()> load;        ///< It is loaded, and not yet shown.
    std::function<void(int)> notify;   ///< `VxDaNotifyDashboard`.
    std::function<void(Point)> reach;  ///< Brings the hostile module to a point.
};

/// The gestures on each part of each custom control that stands on the panels now.
std::vector<Gesture> controlGestures();
/// Clicks on tools, at rest and while a command runs.
std::vector<Gesture> toolGestures(const Stage& stage);
/// Panels, their menus and the palette set.
std::vector<Gesture> panelGestures(const Stage& stage);
/// Documents, commands, variables, profiles, the end of the program and of the module.
std::vector<Gesture> sessionGestures(const Stage& stage);

}  // namespace hostile
