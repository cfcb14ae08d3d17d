#include "tests/hostile/module/hostile_listener.h"

#include "tests/hostile/module/attacker.h"

namespace hostile {

HostileListener& HostileListener::first() {
    static HostileListener s_first;
    return s_first;
}

HostileListener& HostileListener::second() {
    static HostileListener s_second;
    return s_second;
}

void HostileListener::panelsWillUnload() {
    reach(Point::PanelsWillUnload);
}

void HostileListener::panelsUnloaded() {
    reach(Point::PanelsUnloaded);
}

void HostileListener::panelsWillLoad() {
    reach(Point::PanelsWillLoad);
}

void HostileListener::panelsLoaded() {
    reach(Point::PanelsLoaded);
}

void HostileListener::controlsWillBeReleased() {
    reach(Point::ControlsWillBeReleased);
}

void HostileListener::visibilityChanged(BOOL visible) {
    reach(visible != 0 ? Point::BarShown : Point::BarHidden);
}

}  // namespace hostile
