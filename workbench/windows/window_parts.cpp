#include "workbench/windows/window_parts.h"

#include "workbench/windows/window_system.h"

#include <string_view>

namespace workbench {

namespace {

struct PartWord {
    std::string_view className;
    std::string_view word;
};

constexpr PartWord kPartWords[] = {
    {"CQrUiProgSliderCtrl", "slider"},
    {"CQrUiInputEditCtrl", "edit"},
    {"CQrUiQuickStartLink", "link"},
};

/// What a window of a class is called as a part; other classes by their own name.
std::string_view partWord(const Window& window) {
    for (const PartWord& row : kPartWords) {
        if (row.className == window.className)
            return row.word;
    }
    return window.className;
}

}  // namespace

std::string partName(const WindowSystem& windows, HWND window) {
    const HWND owner = windows.owner(window);
    if (owner == nullptr || owner == window)
        return {};
    const std::string_view word = partWord(*windows.find(window));
    int number = 0;
    for (const HWND part : windows.descendants(owner)) {
        if (windows.owner(part) != owner || partWord(*windows.find(part)) != word)
            continue;
        ++number;
        if (part == window)
            break;
    }
    return std::string(word) + (number > 1 ? std::to_string(number) : std::string());
}

HWND findPart(const WindowSystem& windows, HWND owner, const std::string& part) {
    for (const HWND window : windows.descendants(owner)) {
        if (windows.owner(window) == owner && partName(windows, window) == part)
            return window;
    }
    return nullptr;
}

}  // namespace workbench
