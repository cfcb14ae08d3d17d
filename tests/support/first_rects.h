#pragma once

#include "workbench/windows/window_system.h"

#include <map>
#include <memory>

namespace support {

/// Notes with which rectangle each window is made from now on, before any layout. Takes the window
/// system's observer; may outlive the system.
class FirstRects {
public:
    explicit FirstRects(workbench::WindowSystem& windows);

    /// In the parent's client area; empty for a window that was not made meanwhile.
    CRect of(HWND window) const;

private:
    std::shared_ptr<std::map<HWND, CRect>> m_rects;
};

}  // namespace support
