#include "workbench/toolkit/dropdowns.h"

#include "workbench/toolkit/button_widget.h"
#include "workbench/toolkit/tree_widget.h"
#include "workbench/windows/window_system.h"

namespace workbench {

namespace {

constexpr std::string_view kDropdown = ".dropdown";

/// The first window below another one with a widget of a type; null for none.
template <class Type>
HWND firstBelow(const WindowSystem& windows, HWND root) {
    for (const HWND window : windows.descendants(root)) {
        if (dynamic_cast<const Type*>(windows.find(window)->widget.get()) != nullptr)
            return window;
    }
    return nullptr;
}

}  // namespace

std::string nameOfNewDropdown(WindowSystem& windows) {
    std::string name = windows.ownerName(windows.messages().handling());
    if (!name.empty())
        name += kDropdown;
    return name;
}

std::string nameOfDropdownPart(const WindowSystem& windows, HWND parent, std::string_view word) {
    const Window* const popup = windows.find(windows.popupAbove(parent));
    if (popup == nullptr || !popup->name.ends_with(kDropdown))
        return {};
    std::string name = popup->name.substr(0, popup->name.size() - kDropdown.size());
    name += '.';
    name += word;
    return name;
}

HWND findDroppedTree(const WindowSystem& windows, HWND control) {
    HWND found = nullptr;
    for (const HWND top : windows.topWindows()) {
        const Window& popup = *windows.find(top);
        if (popup.popupOf == nullptr || !windows.isOnScreen(top))
            continue;
        const HWND tree = firstBelow<TreeWidget>(windows, top);
        const bool isOwn = popup.opener != nullptr && windows.isWithin(popup.opener, control);
        if (tree != nullptr && (found == nullptr || isOwn))
            found = tree;
    }
    return found;
}

HWND findButtonBeside(const WindowSystem& windows, HWND tree) {
    return firstBelow<ButtonWidget>(windows, windows.popupAbove(tree));
}

}  // namespace workbench
