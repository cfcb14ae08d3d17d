#include "workbench/toolkit/reparent.h"

namespace workbench {

void reparent(WindowSystem& windows, HWND window, HWND parent) {
    Window* const moved = windows.find(window);
    Window* const after = windows.find(parent);
    if (moved == nullptr || moved->parent == nullptr || after == nullptr || moved->parent == parent)
        return;
    if (Window* const before = windows.find(moved->parent); before != nullptr)
        std::erase(before->children, window);
    after->children.push_back(window);
    moved->parent = parent;
    windows.invalidate(parent);
    windows.invalidate(window);
}

}  // namespace workbench
