#include "tests/hostile/host.h"

#include "workbench/gestures/gesture_error.h"
#include "workbench/toolkit/toolkit.h"

namespace hostile {

using workbench::gestures::GestureError;

CQrUiPaletteSet& bar() {
    const auto& bars = host().toolkit().frame().bars();
    if (bars.empty())
        throw GestureError("there is no palette set");
    return *bars.front();
}

HWND named(const std::string& name, int number) {
    const HWND window = host().windows().findByName(name, number);
    if (window == nullptr)
        throw GestureError("there is no window \"" + name + "\"");
    return window;
}

}  // namespace hostile
