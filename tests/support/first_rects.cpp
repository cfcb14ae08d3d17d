#include "tests/support/first_rects.h"

namespace support {

FirstRects::FirstRects(workbench::WindowSystem& windows)
    : m_rects(std::make_shared<std::map<HWND, CRect>>()) {
    windows.changes().setObserver([&windows, rects = m_rects](HWND handle) {
        if (const workbench::Window* window = windows.find(handle))
            rects->try_emplace(handle, window->rect);
    });
}

CRect FirstRects::of(HWND window) const {
    const auto found = m_rects->find(window);
    return found == m_rects->end() ? CRect() : found->second;
}

}  // namespace support
