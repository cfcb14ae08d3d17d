#include "workbench/windows/window_system.h"

namespace workbench {

bool WindowSystem::isOnScreen(HWND window) const {
    const Window* each = find(window);
    if (each == nullptr)
        return false;
    for (; each != nullptr; each = find(each->parent)) {
        if (!each->hasVisibleStyle())
            return false;
    }
    return true;
}

bool WindowSystem::takesInput(HWND window) const {
    const Window* each = find(window);
    if (each == nullptr)
        return false;
    for (; each != nullptr; each = find(each->parent)) {
        if (!each->enabled)
            return false;
    }
    return true;
}

CRect WindowSystem::screenRect(HWND window) const {
    const Window* each = find(window);
    if (each == nullptr)
        return {};
    CRect rect = each->rect;
    while ((each = find(each->parent)) != nullptr) {
        rect.left += each->rect.left;
        rect.right += each->rect.left;
        rect.top += each->rect.top;
        rect.bottom += each->rect.top;
    }
    return rect;
}

CRect WindowSystem::clientRect(HWND window) const {
    const Window* const found = find(window);
    return found == nullptr ? CRect{} : CRect{0, 0, found->rect.Width(), found->rect.Height()};
}

bool WindowSystem::isWithin(HWND window, HWND root) const {
    for (const Window* each = find(window); each != nullptr; each = find(each->parent)) {
        if (each->handle == root)
            return true;
    }
    return false;
}

HWND WindowSystem::findByName(std::string_view name, int skip, HWND root) const {
    const std::vector<HWND> roots = root == nullptr ? m_topWindows : std::vector<HWND>{root};
    for (const HWND top : roots) {
        std::vector<HWND> candidates = descendants(top);
        candidates.insert(candidates.begin(), top);
        for (const HWND candidate : candidates) {
            const Window* const window = find(candidate);
            if (window != nullptr && window->name == name && skip-- == 0)
                return candidate;
        }
    }
    return nullptr;
}

std::string WindowSystem::ownerName(HWND window) const {
    const Window* const named = find(owner(window));
    return named == nullptr ? std::string() : named->name;
}

HWND WindowSystem::owner(HWND window) const {
    for (const Window* each = find(window); each != nullptr; each = find(each->parent)) {
        if (!each->name.empty())
            return each->handle;
    }
    return nullptr;
}

std::vector<HWND> WindowSystem::descendants(HWND window) const {
    std::vector<HWND> all;
    const Window* const found = find(window);
    if (found == nullptr)
        return all;
    for (const HWND child : found->children) {
        all.push_back(child);
        const std::vector<HWND> below = descendants(child);
        all.insert(all.end(), below.begin(), below.end());
    }
    return all;
}

}  // namespace workbench
