#pragma once

#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"
#include "workbench/startup/open_dashboard.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18.h>

#include <cstdint>
#include <string>
#include <string_view>

/// Short words for what the gestures need of the host.
namespace hostile {

inline workbench::Workbench& host() {
    return workbench::Workbench::current();
}

inline workbench::Editor& editor() {
    return host().editor();
}

/// Lets the host run until nothing waits.
inline void letRun() {
    workbench::letHostRun(host());
}

/// Lets time pass.
inline void wait(std::int64_t milliseconds) {
    host().windows().advance(milliseconds);
    letRun();
}

inline void type(std::wstring_view text) {
    editor().type(text);
    letRun();
}

/// The palette set; raises `GestureError` without one.
CQrUiPaletteSet& bar();
/// The n-th window of a name, from 0 on; raises `GestureError` without one.
HWND named(const std::string& name, int number = 0);

}  // namespace hostile
