#include "workbench/windows/window_tree.h"

#include <algorithm>
#include <utility>

namespace workbench {

/// Takes over a window, as the last child of its parent, and gives it its handle.
HWND WindowTree::add(std::unique_ptr<Window> window) {
    Window& added = *window;
    added.handle = m_windows.add(std::move(window));
    siblingsOf(added).push_back(added.handle);
    return added.handle;
}

/// Hands out a window that lives; its handle is stale from now on.
std::unique_ptr<Window> WindowTree::take(HWND window) {
    std::unique_ptr<Window> taken = m_windows.take(window);
    std::erase(siblingsOf(*taken), window);
    return taken;
}

std::vector<HWND>& WindowTree::siblingsOf(const Window& window) {
    Window* const parent = find(window.parent);
    return parent == nullptr ? m_topWindows : parent->children;
}

bool WindowTree::isOnScreen(HWND window) const {
    const Window* each = find(window);
    if (each == nullptr)
        return false;
    for (; each != nullptr; each = find(each->parent)) {
        if (!each->hasVisibleStyle())
            return false;
    }
    return true;
}

bool WindowTree::takesInput(HWND window) const {
    const Window* each = find(window);
    if (each == nullptr)
        return false;
    for (; each != nullptr; each = find(each->parent)) {
        if (!each->enabled)
            return false;
    }
    return true;
}

CRect WindowTree::screenRect(HWND window) const {
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

CRect WindowTree::clientRect(HWND window) const {
    const Window* const found = find(window);
    return found == nullptr ? CRect{} : CRect{0, 0, found->rect.Width(), found->rect.Height()};
}

HWND WindowTree::topOf(HWND window) const {
    const Window* top = find(window);
    while (top != nullptr && find(top->parent) != nullptr)
        top = find(top->parent);
    return top == nullptr ? nullptr : top->handle;
}

HWND WindowTree::popupAbove(HWND window) const {
    const Window* const top = find(topOf(window));
    return top == nullptr || top->popupOf == nullptr ? nullptr : top->handle;
}

bool WindowTree::putBelow(HWND window, HWND sibling) {
    const Window* const moved = find(window);
    if (moved == nullptr || window == sibling)
        return false;
    std::vector<HWND>& pile = siblingsOf(*moved);
    std::vector<HWND> after = pile;
    std::erase(after, window);
    const auto place =
        sibling == nullptr ? after.end() : std::find(after.begin(), after.end(), sibling);
    if (sibling != nullptr && place == after.end())
        return false;
    after.insert(place, window);
    const bool isNew = after != pile;
    pile = std::move(after);
    return isNew;
}

bool WindowTree::isWithin(HWND window, HWND root) const {
    for (const Window* each = find(window); each != nullptr; each = find(each->parent)) {
        if (each->handle == root)
            return true;
    }
    return false;
}

HWND WindowTree::findByName(std::string_view name, int skip, HWND root) const {
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

std::string WindowTree::ownerName(HWND window) const {
    const Window* const named = find(owner(window));
    return named == nullptr ? std::string() : named->name;
}

HWND WindowTree::owner(HWND window) const {
    for (const Window* each = find(window); each != nullptr; each = find(each->parent)) {
        if (!each->name.empty())
            return each->handle;
    }
    return nullptr;
}

std::vector<HWND> WindowTree::descendants(HWND window) const {
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
